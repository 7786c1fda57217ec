#include "platform/desktop/window/Zoom.h"

#include <cmath>
#include <cstdint>

namespace orvanta {

namespace {

constexpr Size kRoomy{1024, 768}, kEnough{800, 600};
constexpr double kPlainDesktop = 96;

int Floor(std::int64_t number, std::int64_t by) {
  const std::int64_t quotient = number / by;
  return static_cast<int>(quotient * by > number ? quotient - 1 : quotient);
}

/// The first of the `shown` screen pixels that show program pixel `number` of `program`. If the window has no
/// area, nothing is scaled.
int FirstOf(int number, int program, int shown) {
  return program > 0 && shown > 0 ? Floor(std::int64_t{number} * shown, program) : number;
}

/// The program pixel that is shown at screen pixel `number`: the last one that begins there or before.
int Holding(int number, int program, int shown) {
  return program > 0 && shown > 0 ? Floor((std::int64_t{number} + 1) * program - 1, shown) : number;
}

}  // namespace

int ZoomFor(Size screen, double dotsPerInch) {
  const int roomy = std::max(1, std::min(screen.width / kRoomy.width, screen.height / kRoomy.height));
  const auto wanted = static_cast<int>(std::clamp(std::round(dotsPerInch / kPlainDesktop), 1.0, 100.0));
  const bool enough = screen.width / wanted >= kEnough.width && screen.height / wanted >= kEnough.height;
  return enough ? std::max(roomy, wanted) : roomy;
}

double TextZoom(int zoom, double dotsPerInch) {
  return std::max(1.0, zoom * kPlainDesktop / std::max(kPlainDesktop, dotsPerInch));
}

double WindowZoom::ScaleX() const {
  return program.width > 0 ? static_cast<double>(shown.width) / program.width : 1;
}

double WindowZoom::ScaleY() const {
  return program.height > 0 ? static_cast<double>(shown.height) / program.height : 1;
}

Rect WindowZoom::ToScreen(const Rect& area) const {
  const int left = FirstOf(area.left, program.width, shown.width);
  const int top = FirstOf(area.top, program.height, shown.height);
  return {left, top, FirstOf(area.Right(), program.width, shown.width) - left,
          FirstOf(area.Bottom(), program.height, shown.height) - top};
}

Point WindowZoom::ToProgram(Point place) const {
  return {Holding(place.x, program.width, shown.width), Holding(place.y, program.height, shown.height)};
}

Rect WindowZoom::Covering(const Rect& area) const {
  const Point first = ToProgram({area.left, area.top});
  const Point last = ToProgram({area.Right() - 1, area.Bottom() - 1});
  return {first.x, first.y, last.x - first.x + 1, last.y - first.y + 1};
}

Point ScreenZoom::ToProgram(Point place) const {
  return {Floor(place.x - screen.left, factor), Floor(place.y - screen.top, factor)};
}

Rect ScreenZoom::ToScreen(const Rect& place) const {
  return {screen.left + place.left * factor, screen.top + place.top * factor, place.width * factor,
          place.height * factor};
}

Rect ScreenZoom::ToScreenAndEdge(const Rect& place) const {
  const Size size = ProgramSize();
  Rect shown = ToScreen(place);
  if (place.Right() == size.width) shown.width = screen.Right() - shown.left;
  if (place.Bottom() == size.height) shown.height = screen.Bottom() - shown.top;
  return shown;
}

}  // namespace orvanta
