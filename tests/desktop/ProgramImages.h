#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvanta {

/// Writes a number into `image`, lowest byte first.
inline void Put(std::string& image, std::size_t at, std::uint32_t value, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) image[at + i] = static_cast<char>(value >> (8 * i) & 0xFF);
}

/// A DOS program of `size` bytes, at most 512, with a valid header.
inline std::string DosProgram(std::size_t size = 200) {
  std::string image(size, '\0');
  image.replace(0, 2, "MZ");
  Put(image, 2, static_cast<std::uint32_t>(size % 512), 2);
  Put(image, 4, 1, 2);
  Put(image, 8, 2, 2);
  Put(image, 0x18, 0x1C, 2);
  return image;
}

/// A program with a DOS stub of 0x80 bytes and a header of another system behind it.
inline std::string ProgramBehindStub(const std::string& mark) {
  std::string image = DosProgram(0x80);
  Put(image, 0x18, 0x40, 2);
  Put(image, 0x3C, 0x80, 4);
  return image + mark + std::string(200, '\0');
}

inline std::string WindowsProgram() { return ProgramBehindStub(std::string("PE\0\0", 4)); }

}  // namespace orvanta
