#pragma once

#include <filesystem>
#include <string>

#include "disctool/disc/MenuTree.h"

namespace orvanta {

/// A disc as a folder in which the shell can run for its pictures. Of an image, the folder `Data` and the
/// music and films that the tree names are copied into a folder that is removed with this object; nothing
/// else is read.
class GalleryDisc {
 public:
  GalleryDisc(const DiscTree& disc, const Catalogue& catalogue, const MenuTree& tree);
  GalleryDisc(const GalleryDisc&) = delete;
  GalleryDisc& operator=(const GalleryDisc&) = delete;
  ~GalleryDisc();

  std::string problem;  ///< why there is none; empty if there is one
  const std::filesystem::path& Folder() const { return folder_; }

 private:
  void CopyFolder(const std::string& folder, int depth);
  void CopyFile(const std::string& file);

  const DiscTree& disc_;
  std::filesystem::path folder_;
  bool isCopy_ = false;
};

}  // namespace orvanta
