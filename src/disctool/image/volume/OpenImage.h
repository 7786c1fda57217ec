#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "disctool/image/volume/ImageTree.h"

namespace orvanta {

/// Opens the volume of an image, which is read in place. Null if there is none; then `problem` says why,
/// starting with the name of the image.
std::unique_ptr<const Volume> OpenVolume(const std::filesystem::path& image, std::string& problem,
                                         std::string* state = nullptr);

/// The same, as a disc.
std::unique_ptr<DiscTree> OpenImage(const std::filesystem::path& image, std::string& problem);

}  // namespace orvanta
