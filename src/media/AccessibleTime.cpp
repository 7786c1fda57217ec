#include "media/AccessibleTime.h"

#include <algorithm>
#include <cmath>

namespace orvanta {

namespace {

/// "1:05" for 65.9 seconds.
std::string InMinutes(double seconds) {
  const auto whole = static_cast<long>(std::min(seconds, 1e8));
  const std::string rest = std::to_string(whole % 60);
  return std::to_string(whole / 60) + (rest.size() < 2 ? ":0" : ":") + rest;
}

}  // namespace

void SetAccessibleTime(AccessibleNode& bar, double position, double length) {
  bar.value = {0, 0, 100};
  if (!(length > 0) || !(position >= 0)) return;
  bar.value->now = std::floor(100 * std::min(1.0, position / length));
  bar.detail = InMinutes(position) + " z " + InMinutes(length);
}

}  // namespace orvanta
