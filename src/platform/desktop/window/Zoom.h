#pragma once

#include "platform/Geometry.h"

namespace orvanta {

/// How many screen pixels one program pixel is wide and high: the largest whole number that leaves the
/// program 1024x768 pixels, or the desktop's own factor if that is larger and leaves 800x600. 1 at least.
/// `dotsPerInch` is the desktop's logical resolution, 96 for a factor of 1.
int ZoomFor(Size screen, double dotsPerInch);

/// How many times larger texts of Qt's own have to be at a zoom. The desktop's resolution enlarges them
/// already.
double TextZoom(int zoom, double dotsPerInch);

/// How a window shows the program's pixels. Where `shown` is a multiple of `program`, each is a square of
/// screen pixels; what is left over makes the last ones larger. Places count from the window's corner.
struct WindowZoom {
  Size program;  ///< size in program pixels
  Size shown;    ///< size in screen pixels

  bool Enlarges() const { return program != shown; }
  double ScaleX() const;
  double ScaleY() const;
  Rect ToScreen(const Rect& area) const;
  /// The program pixel that covers a screen pixel.
  Point ToProgram(Point place) const;
  /// The smallest rectangle of program pixels that covers a rectangle of screen pixels.
  Rect Covering(const Rect& area) const;
};

/// How a screen shows the program's places. `screen` lies where it lies among all screens.
struct ScreenZoom {
  Rect screen;
  int factor = 1;
  bool operator==(const ScreenZoom&) const = default;

  /// What the program takes for the screen's size: rounded down.
  Size ProgramSize() const { return {screen.width / factor, screen.height / factor}; }
  /// From a place among all screens, rounded down.
  Point ToProgram(Point place) const;
  /// Where a window stands among all screens.
  Rect ToScreen(const Rect& place) const;
  /// The same for a window that covers the pixels left over at the screen's right and lower edge, if it
  /// reaches the edge.
  Rect ToScreenAndEdge(const Rect& place) const;
};

}  // namespace orvanta
