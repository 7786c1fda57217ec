#pragma once

#include <filesystem>
#include <string>

namespace orvanta {

/// How GStreamer is to open a file.
struct MediaSource {
  std::string uri;         ///< empty if the path cannot be written as a URI
  double waveStretch = 1;  ///< see `WaveStretch`
};

/// Reads the first bytes of the file.
MediaSource FindMediaSource(const std::filesystem::path& file);

}  // namespace orvanta
