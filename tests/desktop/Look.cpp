#include <algorithm>
#include <cstdio>

#include "desktop/Screen.h"

namespace orvanta::test {

Look::Look(int itsWidth, int itsHeight, Rgb colour)
    : width(itsWidth), height(itsHeight), pixels(static_cast<std::size_t>(width * height), colour) {}

void Look::Fill(const Rect& area, Rgb colour) {
  const Rect part = Intersection(area, {0, 0, width, height});
  for (int y = part.top; y < part.top + part.height; ++y)
    std::fill_n(pixels.begin() + y * width + part.left, part.width, colour);
}

void Look::Frame(const Rect& area, Rgb colour) {
  Fill({area.left, area.top, area.width, 1}, colour);
  Fill({area.left, area.top + area.height - 1, area.width, 1}, colour);
  Fill({area.left, area.top, 1, area.height}, colour);
  Fill({area.left + area.width - 1, area.top, 1, area.height}, colour);
}

int Look::Count(const Rect& area, Rgb colour) const {
  const Rect part = Intersection(area, {0, 0, width, height});
  int count = 0;
  for (int y = part.top; y < part.top + part.height; ++y)
    for (int x = part.left; x < part.left + part.width; ++x) count += At(x, y) == colour ? 1 : 0;
  return count;
}

std::string Difference(const Look& expected, const Look& seen) {
  if (expected.width != seen.width || expected.height != seen.height) return "sizes differ";
  int count = 0;
  std::string first;
  for (int y = 0; y < seen.height; ++y) {
    for (int x = 0; x < seen.width; ++x) {
      const Rgb wanted = expected.At(x, y);
      if (wanted == Look::kAnything || wanted == seen.At(x, y)) continue;
      if (++count > 1) continue;
      char text[80];
      std::snprintf(text, sizeof text, "(%d,%d) is #%06x instead of #%06x", x, y, seen.At(x, y), wanted);
      first = text;
    }
  }
  return count == 0 ? "" : std::to_string(count) + " pixels differ, the first: " + first;
}

}  // namespace orvanta::test
