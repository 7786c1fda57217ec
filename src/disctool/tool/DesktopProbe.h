#pragma once

#include "disctool/disc/DiscProbe.h"

namespace orvanta {

/// Tries a disc's files with what the desktop's shell uses: Qt for pictures and fonts, GStreamer for sound
/// and film. Needs a `QGuiApplication`.
class DesktopProbe : public DiscProbe {
 public:
  std::optional<Size> PictureSize(const std::filesystem::path& file) override;
  std::int64_t MostPixels() const override;
  std::vector<std::string> FontNames(const std::filesystem::path& file) override;
  /// Plays nothing. A file that keeps GStreamer busy for twenty seconds cannot be played.
  bool CanPlay(const std::filesystem::path& file, bool film) override;
  /// A file that stands still for ten seconds is given up.
  std::string DecodingProblem(const std::filesystem::path& file) override;
  std::optional<std::uintmax_t> DifferentPixels(const std::filesystem::path& a,
                                                const std::filesystem::path& b) override;
};

}  // namespace orvanta
