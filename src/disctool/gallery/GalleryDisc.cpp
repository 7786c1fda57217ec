#include "disctool/gallery/GalleryDisc.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>

namespace orvanta {

namespace fs = std::filesystem;

GalleryDisc::GalleryDisc(const DiscTree& disc, const Catalogue& catalogue, const MenuTree& tree)
    : disc_(disc), folder_(disc.OnHost({})) {
  if (!folder_.empty()) return;
  std::error_code error;
  std::string pattern = (fs::temp_directory_path(error) / "orvanta-XXXXXX").string();
  if (!mkdtemp(pattern.data())) {
    problem = pattern + ": " + std::strerror(errno);
    return;
  }
  folder_ = pattern;
  isCopy_ = true;
  CopyFolder(disc.Find("D:\\Data").path.native(), 0);
  for (const MenuNode& node : tree.nodes) {
    if (node.kind != NodeKind::Music && node.kind != NodeKind::Film) continue;
    if (const FoundPath file = disc.Find(catalogue.Find(node.name, "Parameters").value))
      CopyFile(file.path.native());
  }
}

GalleryDisc::~GalleryDisc() {
  std::error_code ignored;
  if (isCopy_) fs::remove_all(folder_, ignored);
}

void GalleryDisc::CopyFolder(const std::string& folder, int depth) {
  constexpr int kDeepest = 16;
  if (folder.empty() || depth == kDeepest || !problem.empty()) return;
  for (const std::string& name : disc_.List(folder)) {
    const std::string path = folder + "/" + name;
    if (disc_.EntryAt(path).kind == DiscTree::Kind::File) CopyFile(path);
    if (disc_.EntryAt(path).kind == DiscTree::Kind::Folder && !disc_.IsLink(path))
      CopyFolder(path, depth + 1);
  }
}

void GalleryDisc::CopyFile(const std::string& file) {
  const fs::path copy = folder_ / file;
  std::error_code error;
  if (!problem.empty() || disc_.EntryAt(file).kind != DiscTree::Kind::File || fs::exists(copy, error)) return;
  fs::create_directories(copy.parent_path(), error);
  std::ofstream out(copy, std::ios::binary);
  constexpr std::uintmax_t kPart = 1024 * 1024;
  for (std::uintmax_t at = 0;; at += kPart) {
    const auto part = disc_.Read(file, at, kPart);
    // What cannot be read is missing for the shell too.
    if (!part || part->empty()) break;
    out.write(part->data(), static_cast<std::streamsize>(part->size()));
  }
  out.close();
  if (!out) problem = copy.string() + ": " + std::strerror(errno);
}

}  // namespace orvanta
