#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/Geometry.h"
#include "platform/Runner.h"

namespace orvanta {

/// Tries files of a disc as the shell would use them. All of them must be regular files.
class DiscProbe {
 public:
  virtual ~DiscProbe() = default;
  /// In pixels; nothing if the file cannot be read as a picture.
  virtual std::optional<Size> PictureSize(const std::filesystem::path& file) = 0;
  /// The shell does not show pictures with more pixels.
  virtual std::int64_t MostPixels() const = 0;
  /// The names of the fonts in a file; none if it is not a font file.
  virtual std::vector<std::string> FontNames(const std::filesystem::path& file) = 0;
  /// Whether the player can open the file; a film must also have a picture.
  virtual bool CanPlay(const std::filesystem::path& file, bool film) = 0;
  /// Decodes a sound or film completely, which takes as long as reading it. Returns what is wrong, in the
  /// user's language; empty if nothing is.
  virtual std::string DecodingProblem(const std::filesystem::path& file) = 0;
  /// What runs a program on this machine. A probe that does not look for it reports nothing as missing.
  virtual Runner RunnerOf(const FileFacts&) { return {}; }
  /// How many pixels of two pictures differ; nothing if one cannot be read or their sizes differ.
  virtual std::optional<std::uintmax_t> DifferentPixels(const std::filesystem::path& a,
                                                        const std::filesystem::path& b) = 0;
};

}  // namespace orvanta
