#pragma once

#include "disctool/command/DiscCommands.h"

namespace orvanta {

/// What `diff` says of two discs, a change in each line. Faults if there is any.
DiscReport DiffReport(const DiscTree& before, const DiscTree& after, DiscProbe& probe, bool json);

}  // namespace orvanta
