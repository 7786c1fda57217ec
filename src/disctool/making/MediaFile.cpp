#include "disctool/making/MediaFile.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace orvanta {
namespace {

std::string Number(std::size_t number, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i, number >>= 8) text += static_cast<char>(number & 0xFF);
  return text;
}

std::string Long(std::size_t number) { return Number(number, 4); }
std::string Short(std::size_t number) { return Number(number, 2); }

/// Chunks begin at even positions.
std::string Chunk(const std::string& name, const std::string& content) {
  return name + Long(content.size()) + content + std::string(content.size() % 2, '\0');
}

}  // namespace

std::string WavFile(std::span<const float> samples, int samplesASecond) {
  const auto rate = static_cast<std::size_t>(samplesASecond);
  std::string data;
  for (const float sample : samples) {
    const auto value = static_cast<std::int16_t>(std::lround(std::clamp(sample, -1.0F, 1.0F) * 32767.0F));
    data += Short(static_cast<std::uint16_t>(value));
  }
  const std::string format = Short(1) + Short(1) + Long(rate) + Long(rate * 2) + Short(2) + Short(16);
  return Chunk("RIFF", "WAVE" + Chunk("fmt ", format) + Chunk("data", data));
}

std::string AviFile(Size size, const std::vector<std::string>& pictures, int picturesASecond) {
  const auto width = static_cast<std::size_t>(size.width), height = static_cast<std::size_t>(size.height);
  const auto rate = static_cast<std::size_t>(picturesASecond);
  constexpr std::size_t kHasIndex = 0x10, kKeyFrame = 0x10;
  std::size_t largest = 0;
  std::string movie = "movi", index;
  for (const std::string& picture : pictures) {
    index += "00dc" + Long(kKeyFrame) + Long(movie.size()) + Long(picture.size());
    movie += Chunk("00dc", picture);
    largest = std::max(largest, picture.size());
  }
  const std::string head = Long(1'000'000 / rate) + Long(largest * rate) + Long(0) + Long(kHasIndex) +
                           Long(pictures.size()) + Long(0) + Long(1) + Long(largest) + Long(width) +
                           Long(height) + std::string(16, '\0');
  const std::string stream = "vidsMJPG" + Long(0) + Long(0) + Long(0) + Long(1) + Long(rate) + Long(0) +
                             Long(pictures.size()) + Long(largest) + Long(0xFFFFFFFF) + Long(0) + Short(0) +
                             Short(0) + Short(width) + Short(height);
  const std::string format = Long(40) + Long(width) + Long(height) + Short(1) + Short(24) + "MJPG" +
                             Long(width * height * 3) + std::string(16, '\0');
  const std::string list = "strl" + Chunk("strh", stream) + Chunk("strf", format);
  return Chunk("RIFF", "AVI " + Chunk("LIST", "hdrl" + Chunk("avih", head) + Chunk("LIST", list)) +
                           Chunk("LIST", movie) + Chunk("idx1", index));
}

}  // namespace orvanta
