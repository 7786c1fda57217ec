#pragma once

#include "platform/Accessible.h"

namespace orvanta {

/// Sets the value of a progress bar, in per cent, and its detail: "0:12 z 3:40". Position and length are in
/// seconds; while the length is unknown, which is 0, the value is 0.
void SetAccessibleTime(AccessibleNode& bar, double position, double length);

}  // namespace orvanta
