#pragma once

#include <algorithm>
#include <string_view>

namespace orvanta {

/// The small letter of a capital from A to Z; any other byte is unchanged.
constexpr char FoldAscii(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// `text` without the characters of `blanks` at both ends.
constexpr std::string_view Trimmed(std::string_view text, std::string_view blanks) {
  const auto first = text.find_first_not_of(blanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Whether two texts are equal, ignoring the case of A to Z.
constexpr bool EqualNoCaseAscii(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return FoldAscii(a) == FoldAscii(b); });
}

}  // namespace orvanta
