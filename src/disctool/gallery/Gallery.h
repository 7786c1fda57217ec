#pragma once

#include <filesystem>
#include <string>

#include "disctool/Progress.h"
#include "disctool/check/Findings.h"
#include "disctool/gallery/GalleryPage.h"

namespace orvanta {

struct MadeGallery {
  GalleryContents contents;
  std::string problem;  ///< what went wrong, empty if nothing did
};

/// Pictures every view of a disc, as the shell paints it, into a folder, with a page that shows them beside
/// the disc's texts and findings. A node of the tree is pictured once, however many ways lead to it; of more
/// than 10,000 nodes the first ones. Needs a `QGuiApplication`, on any platform.
///
/// The folder is new, empty or an earlier gallery, which is renewed; one that was interrupted goes on where
/// it stood. Equal discs and findings give equal files.
MadeGallery MakeGallery(const std::filesystem::path& disc, const std::filesystem::path& folder,
                        const Findings& findings, const Progress& progress);

}  // namespace orvanta
