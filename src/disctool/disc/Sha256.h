#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

/// Computes the SHA-256 hash of bytes that come in parts (FIPS 180-4).
class Sha256 {
 public:
  void Add(std::string_view bytes);
  /// The hash in hexadecimal, 64 digits with small letters. Nothing can be added afterwards.
  std::string Done();

 private:
  void Block(const char* bytes);

  std::array<std::uint32_t, 8> state_{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                      0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
  std::string rest_;  ///< shorter than a block
  std::uint64_t length_ = 0;
};

}  // namespace orvanta
