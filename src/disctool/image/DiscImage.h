#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "disctool/Progress.h"

namespace orvanta {

/// What an image holds, found out before anything is written.
struct ImageContents {
  std::uintmax_t bytes = 0;
  std::uintmax_t files = 0;
  std::string problem;  ///< why it cannot be unpacked, empty if it can
};

/// Reads the directory of an ISO 9660 image (with Rock Ridge or Joliet names where it has them). A name that
/// climbs out of the image, a symbolic link, a device, a FIFO or a socket makes it unfit, and so does
/// anything that cannot be read.
ImageContents ReadImage(const std::filesystem::path& image);

/// Unpacks an image that `ReadImage` found fit into an empty folder. Two names of the image for the same
/// content become two files. Gives what went wrong, empty if nothing did; the folder may then hold anything.
std::string UnpackImage(const std::filesystem::path& image, const ImageContents& contents,
                        const std::filesystem::path& folder, const Progress& progress);

}  // namespace orvanta
