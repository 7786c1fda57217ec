#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/Geometry.h"

namespace orvanta {

/// Tries the files of a disc as the shell would use them. All of them are regular files.
class DiscProbe {
 public:
  virtual ~DiscProbe() = default;
  /// In pixels; nothing if the file cannot be read as a picture.
  virtual std::optional<Size> PictureSize(const std::filesystem::path& file) = 0;
  /// The shell shows no picture of more pixels.
  virtual std::int64_t MostPixels() const = 0;
  /// The names by which texts ask for the fonts in a file; none if it is not a font.
  virtual std::vector<std::string> FontNames(const std::filesystem::path& file) = 0;
  /// The player can open the file; as a film it must have pictures.
  virtual bool CanPlay(const std::filesystem::path& file, bool film) = 0;
  /// Decodes a sound or film from its beginning to its end; that takes as long as reading it. Gives what is
  /// wrong, in the user's language, empty if nothing is.
  virtual std::string DecodingProblem(const std::filesystem::path& file) = 0;
  /// How many pixels of two pictures differ; nothing unless both can be read and are of one size.
  virtual std::optional<std::uintmax_t> DifferentPixels(const std::filesystem::path& a,
                                                        const std::filesystem::path& b) = 0;
};

}  // namespace orvanta
