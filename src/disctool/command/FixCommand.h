#pragma once

#include "disctool/command/DiscCommands.h"

namespace orvanta {

/// Mends the faults in the configuration files of a folder that have only one right answer, and shows the
/// changes as a diff. The old file is kept beside the new one, as Menu.ini.old or with the next free number.
/// `dryRun` only shows the changes. Faults if there are changes, or if a file cannot be mended.
DiscReport FixReport(const DiscTree& disc, DiscProbe& probe, bool dryRun);

}  // namespace orvanta
