#pragma once

#include <string>
#include <vector>

#include "disctool/disc/DiscTree.h"

namespace orvanta {

struct DiscFile {
  std::string path;  ///< as `DiscTree` names it
  DiscTree::Entry entry;
};

/// Every file of a disc, sorted by the bytes of its path. Folders that are links are skipped, since they may
/// lead in circles, and so are folders more than 64 levels deep, which no real disc has.
std::vector<DiscFile> FilesOf(const DiscTree& disc);

/// The links among a disc's entries that lead out of it, sorted.
std::vector<std::string> LinksOff(const DiscTree& disc);

/// The pipes, devices and the like among a disc's entries, sorted.
std::vector<std::string> SpecialsOf(const DiscTree& disc);

}  // namespace orvanta
