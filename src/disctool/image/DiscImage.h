#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "disctool/Progress.h"

namespace orvanta {

/// What an image contains, as found before anything is written.
struct ImageContents {
  std::uintmax_t bytes = 0;
  std::uintmax_t files = 0;
  std::string problem;  ///< why it cannot be unpacked; empty if it can
};

/// Reads the directory of an ISO 9660 image, with Rock Ridge or Joliet names if it has them. The image is
/// rejected if a name leads out of it, if it has a symbolic link, a device, a FIFO or a socket, or if
/// anything cannot be read.
ImageContents ReadImage(const std::filesystem::path& image);

/// Unpacks an image that `ReadImage` has accepted into an empty folder. Two names for the same content become
/// two files. Returns what went wrong; empty on success. After a failure the content of the folder is
/// undefined.
std::string UnpackImage(const std::filesystem::path& image, const ImageContents& contents,
                        const std::filesystem::path& folder, const Progress& progress);

}  // namespace orvanta
