#pragma once

#include <string>
#include <vector>

#include "disctool/gallery/GalleryPage.h"

namespace orvanta {

/// The card of a disc on a library's page: cover, title, counts. `folder` leads to its gallery.
std::string LibraryCard(const GalleryContents& contents, const std::string& folder);

/// What a library searches of a disc, as the elements of a JSON array: `["folder", "id", "title", "kind",
/// "text"]` for each entry.
std::string LibraryIndex(const GalleryContents& contents, const std::string& folder);

/// The page of a library out of the cards of its discs.
std::string LibraryPage(const std::vector<std::string>& cards);

}  // namespace orvanta
