#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace orvanta::test {

/// How an image is written.
struct ImageStyle {
  bool rockRidge = false, joliet = false;
  /// What names of ISO 9660 and Rock Ridge are written as.
  std::function<std::string(const std::string& utf8)> encode = [](const std::string& name) { return name; };
  std::uint32_t address = 0;  ///< of the image's first sector on the disc
};

/// An ISO 9660 image of a folder, with its links if it has Rock Ridge.
std::string IsoImage(const std::filesystem::path& folder, const ImageStyle& style = {});

/// The same in sectors of `stride` bytes with the data at `userData`, after so many sectors of silence.
std::string InSectors(const std::string& iso, std::size_t stride, std::size_t userData,
                      std::size_t pregap = 0);

/// A number in so many bytes, low byte first.
std::string Low(std::uint64_t number, std::size_t bytes);
/// High byte first.
std::string High(std::uint64_t number, std::size_t bytes);

}  // namespace orvanta::test
