#pragma once

#include "disctool/disc/DiscProbe.h"

namespace orvanta {

/// Tries files with the libraries that the desktop shell uses: Qt for pictures and fonts, GStreamer for sound
/// and film. Needs a `QGuiApplication`.
class DesktopProbe : public DiscProbe {
 public:
  std::optional<Size> PictureSize(const std::filesystem::path& file) override;
  std::int64_t MostPixels() const override;
  std::vector<std::string> FontNames(const std::filesystem::path& file) override;
  Runner RunnerOf(const FileFacts& facts) override;
  /// Opens the file without playing it. If GStreamer takes longer than five seconds, the file counts as not
  /// playable.
  bool CanPlay(const std::filesystem::path& file, bool film) override;
  /// Gives up if decoding makes no progress for ten seconds.
  std::string DecodingProblem(const std::filesystem::path& file) override;
  std::optional<std::uintmax_t> DifferentPixels(const std::filesystem::path& a,
                                                const std::filesystem::path& b) override;
};

}  // namespace orvanta
