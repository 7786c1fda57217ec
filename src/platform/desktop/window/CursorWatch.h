#pragma once

#include <optional>

#include "platform/EventLoop.h"
#include "platform/Geometry.h"

namespace orvanta {

/// Where the cursor is, in pixels of all screens together. Asking the X server wakes two threads and is most
/// of the cost of a tick, although every move over a window of the program is reported anyway.
class CursorWatch {
 public:
  /// A window of the program has reported the cursor.
  void Saw(Point place);
  /// The cursor has left the windows of the program, or the windows have changed.
  void Lose();
  /// Lets the next `Place` ask the server, since time has passed without reading the input.
  void Doubt() { place_.reset(); }
  /// The input has been read.
  void Look(Milliseconds now);
  Point Place(Milliseconds now);

 private:
  std::optional<Point> place_;
  bool followed_ = false;
  Milliseconds asked_ = 0;
};

}  // namespace orvanta
