#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "disctool/disc/MenuTree.h"

namespace orvanta {

/// What a gallery shows of one thing: its pictures from top to bottom.
struct GalleryEntry {
  std::string title;
  std::string kind;
  std::vector<std::string> files;  ///< names of picture files beside the page
  std::vector<std::size_t> items;  ///< entries that this one leads to, in its order
};

/// The page that shows a gallery: the first entries up to `root` as they are, then the tree from `root` on.
/// An entry that is met twice is shown once and linked to.
std::string GalleryPage(const std::string& title, const std::vector<GalleryEntry>& entries, std::size_t root);

}  // namespace orvanta
