#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace orvanta {

/// A label lies wholly between the limits: its top is below the upper one, its bottom at most at the lower
/// one.
inline bool IsInView(double top, double height, double upperLimit, double lowerLimit) {
  return top > upperLimit && top + height <= lowerLimit;
}

/// Pixels of the content for one pixel of the knob's travel; 0 if the travel has no length.
inline float SliderScale(std::int32_t range, std::int32_t yMin, std::int32_t yMax) {
  const double travel = static_cast<double>(yMax) - yMin;
  return travel > 0 ? static_cast<float>(range / travel) : 0.0F;
}

/// Where a label stands with the knob `pos` pixels from its start.
inline double ScrolledTop(std::int32_t unscrolled, float scale, std::int32_t pos) {
  return std::floor(unscrolled - static_cast<double>(scale) * pos);
}

/// The knob's place after a move of `step` pixels up (direction 0) or down, held at the ends of its travel.
struct KnobMove {
  std::int32_t y;
  bool stopped;
};
inline KnobMove MovedKnob(std::int32_t y, std::int32_t step, bool up, std::int32_t yMin, std::int32_t yMax) {
  const std::int64_t to = std::int64_t{y} + (up ? -std::int64_t{step} : std::int64_t{step});
  if (up && to < yMin) return {yMin, true};
  if (!up && to > yMax) return {yMax, true};
  return {static_cast<std::int32_t>(to), false};
}

}  // namespace orvanta
