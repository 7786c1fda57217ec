#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "disctool/disc/MenuTree.h"
#include "platform/Geometry.h"

namespace orvanta {

/// A picture of a gallery.
struct GalleryPicture {
  std::string file;    ///< from the gallery's folder on
  std::string ground;  ///< the picture that it lies on; empty if it stands by itself
  Size size;           ///< in pixels
  std::string text;    ///< says what is seen, for those who do not see it
};

/// What a gallery shows of a node of the menu tree, or of a window beside the tree. Texts are UTF-8.
struct GalleryEntry {
  std::string title;
  std::string kind;  ///< in words; empty for what is no node of the tree
  std::vector<GalleryPicture> views, shots;
  std::vector<std::size_t> items;  ///< entries that this one leads to, in its order
  std::string description, requirements, starts;
  std::string sound;  ///< a file that browsers play; empty if there is none
  std::vector<std::string> findings;
};

/// What a gallery's page shows.
struct GalleryContents {
  std::string title;
  std::vector<GalleryEntry> entries;  ///< what lies beside the tree, then the tree
  std::size_t root = 0;               ///< the entry of the first menu
  std::vector<std::string> findings;  ///< of the disc as a whole
  std::string remark;                 ///< what the page leaves out; empty if nothing
};

/// The page of a gallery, in the disc's language. It needs `gallery.css` beside it, and `gallery.js` to
/// search. An entry that is met twice is shown once and linked to.
std::string GalleryPage(const GalleryContents& contents);

/// "program" and the like, in the disc's language.
std::string KindInWords(NodeKind kind);
/// How many entries of each kind there are, in the disc's language.
std::string CountsInWords(const GalleryContents& contents);

}  // namespace orvanta
