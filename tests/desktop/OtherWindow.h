#pragma once

#include <vector>

#include "desktop/Screen.h"

namespace orvanta::test {

/// A window of another program, in one colour and without a frame.
class OtherWindow {
 public:
  OtherWindow(const Rect& place, Rgb colour);

  WindowId Id() const { return window_; }
  /// Where it was clicked since the last question, in its own pixels.
  std::vector<Point> Clicks();

 private:
  Screen screen_;  // a connection of its own, as another program has
  WindowId window_ = 0;
};

}  // namespace orvanta::test
