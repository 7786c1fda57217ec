#include "disctool/making/GifFile.h"

#include <algorithm>
#include <unordered_map>

namespace orvanta {
namespace {

constexpr char kExtension = '\x21', kPicture = '\x2C';
constexpr std::size_t kScreenEnd = 13, kPictureHeader = 10;
/// The length of a block of data is one byte.
constexpr std::size_t kLongestBlock = 255;

unsigned Byte(std::string_view bytes, std::size_t at) { return static_cast<unsigned char>(bytes[at]); }

int Number(std::string_view bytes, std::size_t at) {
  return static_cast<int>(Byte(bytes, at) | Byte(bytes, at + 1) << 8);
}

/// The length in bytes of the colour table, according to the flags.
std::size_t TableLength(unsigned flags) {
  return (flags & 0x80) == 0 ? 0 : std::size_t{3} << ((flags & 7) + 1);
}

/// The position after the blocks that begin at `at`; nothing if the file ends inside them.
std::optional<std::size_t> BehindBlocks(std::string_view bytes, std::size_t at) {
  while (at < bytes.size()) {
    const unsigned length = Byte(bytes, at);
    at += 1 + length;
    if (length == 0) return at;
  }
  return std::nullopt;
}

/// Packs codes of increasing width, low bit first, into the data of a picture.
class CodeWriter {
 public:
  void Put(unsigned code, unsigned width) {
    bits_ |= code << used_;
    for (used_ += width; used_ >= 8; used_ -= 8, bits_ >>= 8) data_ += static_cast<char>(bits_ & 0xFF);
  }
  /// The data in blocks, followed by the empty block that ends them.
  std::string Blocks() {
    if (used_ > 0) data_ += static_cast<char>(bits_ & 0xFF);
    std::string blocks;
    for (std::size_t at = 0; at < data_.size(); at += kLongestBlock) {
      const std::string block = data_.substr(at, kLongestBlock);
      blocks += static_cast<char>(block.size()) + block;
    }
    return blocks + '\0';
  }

 private:
  std::string data_;
  std::uint32_t bits_ = 0;
  unsigned used_ = 0;
};

std::string Compressed(std::span<const std::uint8_t> pixels) {
  constexpr unsigned kDepth = 8, kClear = 1u << kDepth, kEnd = kClear + 1, kMostCodes = 4096;
  CodeWriter out;
  std::unordered_map<unsigned, unsigned> known;  // maps a code and the pixel after it to their common code
  unsigned width = kDepth + 1, next = kEnd + 1;
  out.Put(kClear, width);
  unsigned code = pixels.empty() ? 0 : pixels[0];
  for (std::size_t i = 1; i < pixels.size(); ++i) {
    const unsigned both = code << kDepth | pixels[i];
    if (const auto found = known.find(both); found != known.end()) {
      code = found->second;
      continue;
    }
    out.Put(code, width);
    if (next == kMostCodes) {
      out.Put(kClear, width);
      known.clear();
      width = kDepth + 1;
      next = kEnd + 1;
    } else {
      // A decoder learns each code one step later, so the width increases after the first code that needs it.
      if (next == 1u << width) ++width;
      known.emplace(both, next++);
    }
    code = pixels[i];
  }
  out.Put(code, width);
  out.Put(kEnd, width);
  return static_cast<char>(kDepth) + out.Blocks();
}

std::string Text(int number) {
  return {static_cast<char>(number & 0xFF), static_cast<char>(number >> 8 & 0xFF)};
}

}  // namespace

std::optional<Size> WholeGifSize(std::string_view bytes) {
  if (!bytes.starts_with("GIF87a") && !bytes.starts_with("GIF89a")) return std::nullopt;
  if (bytes.size() < kScreenEnd) return std::nullopt;
  const Size screen{Number(bytes, 6), Number(bytes, 8)};
  std::optional<std::size_t> at = kScreenEnd + TableLength(Byte(bytes, 10));
  while (at && *at < bytes.size() && bytes[*at] == kExtension) at = BehindBlocks(bytes, *at + 2);
  if (!at || *at + kPictureHeader >= bytes.size() || bytes[*at] != kPicture) return std::nullopt;
  // The byte before the blocks is the width of the codes.
  at = BehindBlocks(bytes, *at + kPictureHeader + TableLength(Byte(bytes, *at + 9)) + 1);
  return at && !screen.Empty() ? std::optional(screen) : std::nullopt;
}

std::string GifFile(Size size, std::span<const std::uint8_t> pixels, const std::vector<GifColour>& colours) {
  constexpr char kTableOf256 = '\xF7';
  std::string file = "GIF89a" + Text(size.width) + Text(size.height) + kTableOf256 + std::string(2, '\0');
  for (std::size_t i = 0; i < 256; ++i)
    for (const std::uint8_t part : i < colours.size() ? colours[i] : GifColour{})
      file += static_cast<char>(part);
  file += kPicture + std::string(4, '\0') + Text(size.width) + Text(size.height) + '\0';
  return file + Compressed(pixels) + ';';
}

}  // namespace orvanta
