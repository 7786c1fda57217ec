#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "platform/Geometry.h"

namespace orvanta {

/// Tries the files of a disc as the shell would use them. All of them are regular files.
class DiscProbe {
 public:
  virtual ~DiscProbe() = default;
  /// In pixels; nothing if the file cannot be read as a picture.
  virtual std::optional<Size> PictureSize(const std::filesystem::path& file) = 0;
  virtual bool IsFont(const std::filesystem::path& file) = 0;
  /// The player can open the file; as a film it must have pictures.
  virtual bool CanPlay(const std::filesystem::path& file, bool film) = 0;
  /// How many pixels of two pictures differ; nothing unless both can be read and are of one size.
  virtual std::optional<std::uintmax_t> DifferentPixels(const std::filesystem::path& a,
                                                        const std::filesystem::path& b) = 0;
};

}  // namespace orvanta
