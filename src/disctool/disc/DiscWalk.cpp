#include "disctool/disc/DiscWalk.h"

#include <algorithm>

namespace orvanta {
namespace {

struct Folder {
  std::string path;
  int depth = 0;
};

constexpr int kDeepest = 64;

/// Calls `visit` with the path of every entry, folders before what they hold.
template <class Visit>
void Walk(const DiscTree& disc, Visit visit) {
  std::vector<Folder> folders{{}};
  while (!folders.empty()) {
    const Folder folder = std::move(folders.back());
    folders.pop_back();
    for (const std::string& name : disc.List(folder.path)) {
      const std::string path = folder.path.empty() ? name : folder.path + "/" + name;
      const DiscTree::Entry entry = disc.EntryAt(path);
      visit(path, entry);
      const bool enter = entry.kind == DiscTree::Kind::Folder && folder.depth < kDeepest;
      if (enter && !disc.IsLink(path)) folders.push_back({path, folder.depth + 1});
    }
  }
}

}  // namespace

std::vector<DiscFile> FilesOf(const DiscTree& disc) {
  std::vector<DiscFile> files;
  Walk(disc, [&](const std::string& path, const DiscTree::Entry& entry) {
    if (entry.kind == DiscTree::Kind::File) files.push_back({path, entry});
  });
  std::ranges::sort(files, {}, &DiscFile::path);
  return files;
}

std::vector<std::string> LinksOff(const DiscTree& disc) {
  std::vector<std::string> links;
  Walk(disc, [&](const std::string& path, const DiscTree::Entry&) {
    if (disc.IsLink(path) && disc.LeadsOff(path)) links.push_back(path);
  });
  std::ranges::sort(links);
  return links;
}

std::vector<std::string> SpecialsOf(const DiscTree& disc) {
  std::vector<std::string> specials;
  Walk(disc, [&](const std::string& path, const DiscTree::Entry& entry) {
    if (entry.kind == DiscTree::Kind::Other && !disc.IsLink(path)) specials.push_back(path);
  });
  std::ranges::sort(specials);
  return specials;
}

}  // namespace orvanta
