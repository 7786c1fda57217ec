#pragma once

#include <cmath>
#include <cstdint>
#include <optional>

#include "config/Values.h"

namespace orvanta {

/// The marker's column for a position in a file, both in the same unit; nothing while the file's end is
/// unknown.
inline std::optional<std::int16_t> MarkerPlace(std::int16_t start, std::int16_t length, double position,
                                               double end) {
  const double place = start + length * position / end;
  if (end == 0 || !std::isfinite(place)) return std::nullopt;
  return CInt(place);
}

}  // namespace orvanta
