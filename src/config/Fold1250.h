#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvanta {

/// Maps each capital letter of Windows-1250 to its small letter, and every other byte to itself.
inline constexpr auto kFold1250 = [] {
  // Capitals whose small letter is not 0x20 above them: Š Ś Ť Ž Ź, Ł Ą Ş Ż, Ľ.
  constexpr std::string_view kOddCapitals = "\x8A\x8C\x8D\x8E\x8F\xA3\xA5\xAA\xAF\xBC";
  constexpr std::string_view kOddSmall = "\x9A\x9C\x9D\x9E\x9F\xB3\xB9\xBA\xBF\xBE";
  std::array<unsigned char, 256> fold{};
  for (unsigned i = 0; i < fold.size(); ++i) {
    const bool capital = (i >= 'A' && i <= 'Z') || (i >= 0xC0 && i <= 0xDE && i != 0xD7);
    fold[i] = static_cast<unsigned char>(capital ? i + 0x20 : i);
  }
  for (std::size_t i = 0; i < kOddCapitals.size(); ++i) {
    fold[static_cast<unsigned char>(kOddCapitals[i])] = static_cast<unsigned char>(kOddSmall[i]);
  }
  return fold;
}();

constexpr char Fold1250(char byte) { return static_cast<char>(kFold1250[static_cast<unsigned char>(byte)]); }

/// A text in Windows-1250 with its capitals replaced by small letters.
inline std::string Folded1250(std::string_view bytes) {
  std::string folded(bytes);
  std::transform(folded.begin(), folded.end(), folded.begin(), Fold1250);
  return folded;
}

/// Whether two texts in Windows-1250 are equal, ignoring case.
constexpr bool EqualNoCase1250(std::string_view left, std::string_view right) {
  if (left.size() != right.size()) return false;
  // Compare from the end: here, many names begin alike, but few end alike.
  for (std::size_t i = left.size(); i-- != 0;) {
    if (Fold1250(left[i]) != Fold1250(right[i])) return false;
  }
  return true;
}

}  // namespace orvanta
