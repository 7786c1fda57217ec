#include "platform/headless/PictureFile.h"

#include <array>
#include <cstring>
#include <fstream>

namespace orvanta {

PicturePtr ReadPictureFile(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return nullptr;
  std::array<unsigned char, 24> head{};
  std::ifstream stream(file, std::ios::binary);
  stream.read(reinterpret_cast<char*>(head.data()), static_cast<std::streamsize>(head.size()));
  const auto length = stream.gcount();
  const auto at = [&](std::size_t i) { return static_cast<int>(head[i]); };
  Size size;
  if (length >= 10 && std::memcmp(head.data(), "GIF8", 4) == 0) {
    // GIF89a, section 18: the size of the logical screen, low byte first.
    size = {at(6) + at(7) * 256, at(8) + at(9) * 256};
  } else if (length >= 24 && std::memcmp(head.data(), "\x89PNG\r\n\x1a\n", 8) == 0) {
    // PNG, section 11.2.2: the first chunk has the size, high byte first. Its upper half is taken as 0.
    size = {at(18) * 256 + at(19), at(22) * 256 + at(23)};
  }
  if (size.Empty()) return nullptr;
  return std::make_shared<PictureFile>(file.filename().string(), size);
}

}  // namespace orvanta
