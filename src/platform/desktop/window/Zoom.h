#pragma once

#include "platform/Geometry.h"

namespace orvanta {

/// How many screen pixels wide and high one program pixel is: the largest whole number that leaves the
/// program 1024x768 pixels, or the desktop's own factor if that is larger and leaves 800x600; at least 1.
/// `dotsPerInch` is the desktop's logical resolution; 96 means a factor of 1.
int ZoomFor(Size screen, double dotsPerInch);

/// By how much Qt's own texts have to be enlarged at a zoom; the resolution of the desktop already enlarges
/// them.
double TextZoom(int zoom, double dotsPerInch);

/// How a window shows the program's pixels. If `shown` is a multiple of `program`, each is a square of screen
/// pixels; otherwise the last ones are larger. Positions are relative to the window.
struct WindowZoom {
  Size program;  ///< the size in program pixels
  Size shown;    ///< the size in screen pixels

  bool Enlarges() const { return program != shown; }
  double ScaleX() const;
  double ScaleY() const;
  Rect ToScreen(const Rect& area) const;
  /// The program pixel that is shown at a screen pixel.
  Point ToProgram(Point place) const;
  /// The smallest rectangle of program pixels that covers a rectangle of screen pixels.
  Rect Covering(const Rect& area) const;
};

/// How a screen shows the program's positions. `screen` is the position and size of the screen among all
/// screens.
struct ScreenZoom {
  Rect screen;
  int factor = 1;
  bool operator==(const ScreenZoom&) const = default;

  /// The size of the screen for the program, rounded down.
  Size ProgramSize() const { return {screen.width / factor, screen.height / factor}; }
  /// Converts a position among all screens, rounded down.
  Point ToProgram(Point place) const;
  /// Where a window is among all screens.
  Rect ToScreen(const Rect& place) const;
  /// The same for a window that reaches the right or lower edge of the screen and has to cover the remaining
  /// pixels there.
  Rect ToScreenAndEdge(const Rect& place) const;
};

}  // namespace orvanta
