#pragma once

#include <string>
#include <vector>

#include "disctool/gallery/GalleryPage.h"

namespace orvanta {

/// The card of a disc on the page of a library: cover, title and counts. `folder` is the folder of its
/// gallery.
std::string LibraryCard(const GalleryContents& contents, const std::string& folder);

/// What the search of a library knows about a disc, as elements of a JSON array: `["folder", "id", "title",
/// "kind", "text"]` for each entry.
std::string LibraryIndex(const GalleryContents& contents, const std::string& folder);

/// The page of a library, made of the cards of its discs.
std::string LibraryPage(const std::vector<std::string>& cards);

}  // namespace orvanta
