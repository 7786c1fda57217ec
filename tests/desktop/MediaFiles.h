#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "desktop/ScratchFolder.h"

namespace orvanta {

/// Makes files of sound and film. All sounds are pure tones, one after the other, half a second each.
class MediaFiles {
 public:
  using Tones = std::vector<int>;
  struct WaveForm {
    int rate = 44100;
    int bits = 16;
    int channels = 1;
    std::string after = {};  ///< bytes that follow the sound's chunk
  };

  std::filesystem::path Wave(const std::string& name, const Tones& tones, const WaveForm& form) const;
  std::filesystem::path Wave(const std::string& name, const Tones& tones) const {
    return Wave(name, tones, {});
  }
  /// A4 in the piano's voice, for half a second each time.
  std::filesystem::path Midi(const std::string& name, int notes) const;
  /// Made by ffmpeg with these options for its output; empty if it cannot.
  std::filesystem::path Encoded(const std::string& name, const std::string& options,
                                const Tones& tones) const;
  /// The same with pictures of 160 by 120, 25 a second, that carry their number (see `FrameNumber`).
  std::filesystem::path Film(const std::string& name, const std::string& options, const Tones& tones) const;

  ScratchFolder folder;
};

/// Hertz of that note.
constexpr int kA4 = 440;

/// Eight upright bars, the lowest bit on the left; a bit is white.
constexpr int kFrameBars = 8;

}  // namespace orvanta
