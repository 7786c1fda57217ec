#pragma once

#include <cmath>
#include <cstdint>
#include <optional>

#include "config/Values.h"

namespace orvanta {

/// The left edge of the marker for a position in a file. Position and end are in the same unit; nothing while
/// the end is not known.
inline std::optional<std::int16_t> MarkerPlace(std::int16_t start, std::int16_t length, double position,
                                               double end) {
  const double place = start + length * position / end;
  if (end == 0 || !std::isfinite(place)) return std::nullopt;
  return CInt(place);
}

}  // namespace orvanta
