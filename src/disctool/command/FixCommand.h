#pragma once

#include "disctool/command/DiscCommands.h"

namespace orvanta {

/// Mends what has one right answer in the configuration files of a folder and shows it as a diff. The old
/// file stays beside the new one, as Menu.ini.old or with the next free number. `dryRun` only shows it.
/// Faults if something would change, or could not be mended.
DiscReport FixReport(const DiscTree& disc, DiscProbe& probe, bool dryRun);

}  // namespace orvanta
