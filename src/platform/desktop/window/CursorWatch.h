#pragma once

#include <optional>

#include "platform/EventLoop.h"
#include "platform/Geometry.h"

namespace orvanta {

/// Where the cursor is, in pixels of all the screens together. Asking the server wakes two threads and is
/// most of what a tick costs, and over a window of the program every move is told anyway.
class CursorWatch {
 public:
  /// A window of the program was told of the cursor.
  void Saw(Point place);
  /// It is no longer over a window of the program, or the windows changed under it.
  void Lose();
  /// The next `Place` asks anew: time has passed without a look at the input.
  void Doubt() { place_.reset(); }
  /// The input was looked at.
  void Look(Milliseconds now);
  Point Place(Milliseconds now);

 private:
  std::optional<Point> place_;
  bool followed_ = false;
  Milliseconds asked_ = 0;
};

}  // namespace orvanta
