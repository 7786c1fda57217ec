#pragma once

#include <filesystem>
#include <string>

#include "disctool/Progress.h"

namespace orvanta {

/// Pictures every view of a disc, as the shell paints it, into a new or empty folder, with an index.html. A
/// node of the tree is pictured once, however many ways lead to it. Needs a `QGuiApplication`, on any
/// platform.
///
/// Gives what went wrong, empty if nothing did.
std::string MakeGallery(const std::filesystem::path& disc, const std::filesystem::path& folder,
                        const Progress& progress);

}  // namespace orvanta
