#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "disctool/disc/DiscTree.h"

namespace orvanta {

/// Opens what a user has named as a disc: a folder, an image, which is read in place, or an
/// archive with one of them, which is unpacked once. Null if it is
/// neither; then `problem` says why, starting with the name.
std::unique_ptr<DiscTree> OpenTree(const std::filesystem::path& disc, std::string& problem);

}  // namespace orvanta
