#pragma once

#include <algorithm>
#include <string_view>

namespace orvanta {

/// The small letter of a capital from A to Z; any other byte is unchanged.
constexpr char FoldAscii(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// Whether two texts are equal, ignoring the case of A to Z.
constexpr bool EqualNoCaseAscii(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return FoldAscii(a) == FoldAscii(b); });
}

}  // namespace orvanta
