#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "disctool/disc/MenuTree.h"
#include "platform/Geometry.h"

namespace orvanta {

/// A picture of a gallery.
struct GalleryPicture {
  std::string file;    ///< relative to the gallery's folder
  std::string ground;  ///< the picture that it is laid on; empty if it is complete by itself
  Size size;           ///< in pixels
  std::string text;    ///< alternative text that describes the picture
};

/// What a gallery shows for a node of the menu tree, or for a window outside the tree. Texts are UTF-8.
struct GalleryEntry {
  std::string title;
  std::string kind;  ///< in words; empty outside the tree
  std::vector<GalleryPicture> views, shots;
  std::vector<std::size_t> items;  ///< the entries that this one leads to, in the menu's order
  std::string description, requirements, starts;
  std::string sound;  ///< a file that browsers can play; empty if there is none
  std::vector<std::string> findings;
};

/// What a gallery's page shows.
struct GalleryContents {
  std::string title;
  std::vector<GalleryEntry> entries;  ///< the windows outside the tree, then the tree
  std::size_t root = 0;               ///< the entry of the first menu
  std::vector<std::string> findings;  ///< those that concern the whole disc
  std::string remark;                 ///< what the page leaves out; empty if it is complete
};

/// The page of a gallery, in the disc's language. It needs `gallery.css` beside it, and `gallery.js` for the
/// search. An entry that occurs more than once is shown once and linked to.
std::string GalleryPage(const GalleryContents& contents);

/// "program" and the like, in the disc's language.
std::string KindInWords(NodeKind kind);
/// How many entries of each kind there are, in the disc's language.
std::string CountsInWords(const GalleryContents& contents);

}  // namespace orvanta
