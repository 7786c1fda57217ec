#pragma once

#include <filesystem>
#include <string>

#include "disctool/Progress.h"
#include "disctool/check/Findings.h"
#include "disctool/gallery/GalleryPage.h"

namespace orvanta {

struct MadeGallery {
  GalleryContents contents;
  std::string problem;  ///< what went wrong; empty on success
};

/// Takes screenshots of every view of a disc, as the shell paints it, and makes a page that shows them with
/// the disc's texts and findings. Each node of the menu tree is shown once, however many ways lead to it. If
/// there are more than 10,000 nodes, the rest is left out. Needs a `QGuiApplication` with any platform
/// plugin.
///
/// The folder must be new, empty or an earlier gallery, which is renewed; an interrupted gallery is
/// continued. The same disc and findings always give the same files.
MadeGallery MakeGallery(const DiscTree& disc, const std::filesystem::path& folder, const Findings& findings,
                        const Progress& progress);

}  // namespace orvanta
