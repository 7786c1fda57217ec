#include "disctool/gallery/Gallery.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>

#include "disctool/Translation.h"
#include "disctool/gallery/GalleryWalk.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// What is in the way of a gallery; empty if nothing is.
std::string Obstacle(const fs::path& disc, const fs::path& folder) {
  if (Catalogue(FolderTree(disc)).Empty()) return NoDiscIn(disc);
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) return folder.string() + ": " + error.message();
  if (!fs::is_empty(folder, error) || error)
    return folder.string() + ": " + Translated("the folder is not empty");
  return {};
}

}  // namespace

std::string MakeGallery(const fs::path& disc, const fs::path& folder, const Progress& progress) {
  if (std::string obstacle = Obstacle(disc, folder); !obstacle.empty()) return obstacle;
  GalleryWalk walk(disc, folder, progress);
  walk.Go();
  if (!walk.fault.empty()) return walk.fault;
  const Setting caption = Catalogue(FolderTree(disc)).Find("HEADLINE", "Caption");
  std::ofstream page(folder / "index.html", std::ios::binary);
  page << GalleryPage(caption ? caption.value : disc.filename().string(), walk.entries, walk.root);
  page.close();
  return page ? std::string() : (folder / "index.html").string() + ": " + std::strerror(errno);
}

}  // namespace orvanta
