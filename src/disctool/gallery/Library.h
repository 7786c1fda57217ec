#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "disctool/Progress.h"
#include "disctool/gallery/Gallery.h"

namespace orvanta {

/// Makes the gallery of the disc at `disc` in `folder`, with its findings. The disc may be an image.
using GalleryMaker =
    std::function<MadeGallery(const std::filesystem::path& disc, const std::filesystem::path& folder)>;

/// Makes one site of the galleries of many discs in the folder `out`: a page with the covers of all discs and
/// a search over their texts. Discs that the folder already has are kept; those that are named again are
/// renewed if they have changed. Needs whatever `make` needs.
///
/// Returns what went wrong with each disc or with the folder; empty on success. A bad disc does not stop the
/// others.
std::vector<std::string> MakeLibrary(const std::filesystem::path& out,
                                     const std::vector<std::filesystem::path>& discs,
                                     const GalleryMaker& make, const Progress& progress);

}  // namespace orvanta
