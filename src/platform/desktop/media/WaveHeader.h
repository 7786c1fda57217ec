#pragma once

#include <filesystem>
#include <optional>

namespace orvanta {

/// What a wave file tells of its sound (Microsoft, Multimedia Programming Interface 1.0).
struct WaveHeader {
  static constexpr int kMsAdpcm = 0x02, kImaAdpcm = 0x11;  ///< of `format`

  int format = 0;
  int channels = 0;
  int blockAlign = 0;  ///< bytes of one block
};

/// Nothing if the file is no wave file, whatever its name. All zero if the sound is told of in an unusual
/// place.
std::optional<WaveHeader> ReadWaveHeader(const std::filesystem::path& file);

}  // namespace orvanta
