#include "disctool/disc/DiscWalk.h"

#include <algorithm>

namespace orvanta {
namespace {

struct Folder {
  std::string path;
  int depth = 0;
};

constexpr int kDeepest = 64;

}  // namespace

std::vector<DiscFile> FilesOf(const DiscTree& disc) {
  std::vector<DiscFile> files;
  std::vector<Folder> folders{{}};
  while (!folders.empty()) {
    const Folder folder = std::move(folders.back());
    folders.pop_back();
    for (const std::string& name : disc.List(folder.path)) {
      const std::string path = folder.path.empty() ? name : folder.path + "/" + name;
      const DiscTree::Entry entry = disc.EntryAt(path);
      if (entry.kind == DiscTree::Kind::File) files.push_back({path, entry});
      const bool enter = entry.kind == DiscTree::Kind::Folder && folder.depth < kDeepest;
      if (enter && !disc.IsLink(path)) folders.push_back({path, folder.depth + 1});
    }
  }
  std::ranges::sort(files, {}, &DiscFile::path);
  return files;
}

}  // namespace orvanta
