#include "platform/desktop/media/WaveHeader.h"

#include <array>
#include <fstream>
#include <string_view>

namespace orvanta {

std::optional<WaveHeader> ReadWaveHeader(const std::filesystem::path& file) {
  std::array<char, 36> head{};
  std::ifstream(file, std::ios::binary).read(head.data(), head.size());
  const std::string_view view(head.data(), head.size());
  if (!view.starts_with("RIFF") || view.substr(8, 4) != "WAVE") return std::nullopt;
  if (view.substr(12, 4) != "fmt ") return WaveHeader{};
  const auto word = [&view](std::size_t at) {
    return static_cast<unsigned char>(view[at]) | static_cast<unsigned char>(view[at + 1]) << 8;
  };
  return WaveHeader{.format = word(20), .channels = word(22), .blockAlign = word(32)};
}

}  // namespace orvanta
