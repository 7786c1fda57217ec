#pragma once

#include <filesystem>
#include <string>

namespace orvanta {

/// A file as GStreamer is to open it.
struct MediaSource {
  std::string uri;         ///< Empty for a path that cannot be one.
  double waveStretch = 1;  ///< See `WaveStretch`.
};

/// Reads the file's first bytes.
MediaSource FindMediaSource(const std::filesystem::path& file);

}  // namespace orvanta
