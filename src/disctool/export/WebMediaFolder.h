#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "disctool/Progress.h"
#include "disctool/disc/DiscTree.h"
#include "disctool/export/WebIndex.h"

namespace orvanta {

/// Converts what browsers cannot play into `folder`, on all cores, and notes it in `files` as `as`, the name
/// of the folder before it. A conversion is named by its source's path, size and content, so that the next
/// export finds it; those of other sources are removed. Gives a problem for each file that was not converted.
std::vector<std::string> ConvertMedia(const DiscTree& disc, const std::filesystem::path& folder,
                                      WebFiles& files, const Progress& progress);

}  // namespace orvanta
