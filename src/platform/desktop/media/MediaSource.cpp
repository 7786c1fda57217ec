#include "platform/desktop/media/MediaSource.h"

#include "platform/desktop/media/GstHandles.h"
#include "platform/desktop/media/WaveTimeline.h"

namespace orvanta {

MediaSource FindMediaSource(const std::filesystem::path& file) {
  std::error_code noFile;
  const std::string absolute = std::filesystem::absolute(file, noFile).string();
  const GstHandle<char> encoded(g_filename_to_uri(absolute.c_str(), nullptr, nullptr));
  if (!encoded) return {};
  const auto wave = ReadWaveHeader(file);
  if (!wave) return {.uri = encoded.get()};
  // With random access, a sound with an odd number of bytes, or with a few bytes after it, ends at once
  // without being heard; as a stream it plays. Many old voices are like that.
  return {.uri = "push" + std::string(encoded.get()), .waveStretch = WaveStretch(*wave)};
}

}  // namespace orvanta
