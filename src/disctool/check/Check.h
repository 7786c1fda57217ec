#pragma once

#include <filesystem>

#include "disctool/check/Findings.h"

namespace orvanta {

class DiscProbe;

/// Everything that is wrong with the disc in a folder, sorted. Never fails: a folder without a disc is a
/// finding too.
Findings CheckDisc(const std::filesystem::path& folder, DiscProbe& probe);

}  // namespace orvanta
