#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orvanta {

/// A number of up to eight bytes, low byte first, in a structure of a file. 0 if the structure ends before it
/// does.
constexpr std::uint64_t LittleEndian(std::string_view bytes, std::size_t at, std::size_t width) {
  if (at > bytes.size() || width > bytes.size() - at) return 0;
  std::uint64_t number = 0;
  for (std::size_t i = width; i-- != 0;) number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
  return number;
}

/// The same, high byte first.
constexpr std::uint64_t BigEndian(std::string_view bytes, std::size_t at, std::size_t width) {
  if (at > bytes.size() || width > bytes.size() - at) return 0;
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < width; ++i) number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
  return number;
}

}  // namespace orvanta
