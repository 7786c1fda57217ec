#pragma once

#include "disctool/command/DiscCommands.h"

namespace orvanta {

/// The output of `diff` for two discs: a line for each change. Faults if there is any.
DiscReport DiffReport(const DiscTree& before, const DiscTree& after, DiscProbe& probe, bool json);

}  // namespace orvanta
