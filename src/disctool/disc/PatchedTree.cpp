#include "disctool/disc/PatchedTree.h"

#include <algorithm>

namespace orvanta {

DiscTree::Entry PatchedTree::EntryAt(const std::string& path) const {
  Entry entry = disc_.EntryAt(path);
  if (const auto patch = files_.find(path); patch != files_.end()) entry.size = patch->second.size();
  return entry;
}

std::optional<std::string> PatchedTree::Read(const std::string& path, std::uintmax_t from,
                                             std::uintmax_t most) const {
  const auto patch = files_.find(path);
  if (patch == files_.end()) return disc_.Read(path, from, most);
  const std::string& bytes = patch->second;
  return bytes.substr(static_cast<std::size_t>(std::min<std::uintmax_t>(from, bytes.size())),
                      static_cast<std::size_t>(std::min<std::uintmax_t>(most, bytes.size())));
}

}  // namespace orvanta
