#include "config/Windows1250.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "config/Fold1250.h"
#include "platform/AsciiText.h"
#include "platform/Utf8.h"

namespace orvanta {
namespace {

/// Characters of the bytes 0x80 to 0xFF, after the Unicode Consortium's mapping table CP1250.TXT.
constexpr std::array<char16_t, 128> kUpperHalf = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

constexpr char16_t CharacterOf(unsigned char byte) { return byte < 0x80 ? byte : kUpperHalf[byte - 0x80u]; }

constexpr int kNoByte = -1;

int ByteOf(char16_t character) {
  if (character < 0x80) return character;
  const auto* found = std::find(kUpperHalf.begin(), kUpperHalf.end(), character);
  return found == kUpperHalf.end() ? kNoByte : 0x80 + static_cast<int>(found - kUpperHalf.begin());
}

/// Removes one character of up to three bytes, the most that Windows-1250 needs, from the front of `utf8`.
std::optional<char16_t> TakeCharacter(std::string_view& utf8) {
  const auto lead = static_cast<unsigned char>(utf8.front());
  const std::size_t length = lead < 0x80 ? 1 : (lead & 0xE0) == 0xC0 ? 2 : (lead & 0xF0) == 0xE0 ? 3 : 0;
  if (length == 0 || utf8.size() < length) return std::nullopt;
  std::uint32_t character = length == 1 ? lead : lead & (0xFFu >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(utf8[i]);
    if ((next & 0xC0) != 0x80) return std::nullopt;
    character = character << 6 | (next & 0x3Fu);
  }
  const std::uint32_t least = length == 3 ? 0x800 : length == 2 ? 0x80 : 0;
  if (character < least) return std::nullopt;
  utf8.remove_prefix(length);
  return static_cast<char16_t>(character);
}

}  // namespace

std::string FromWindows1250(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) AppendUtf8(text, CharacterOf(static_cast<unsigned char>(byte)));
  return text;
}

std::optional<std::string> ToWindows1250(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const auto character = TakeCharacter(utf8);
    const int byte = character ? ByteOf(*character) : kNoByte;
    if (byte == kNoByte) return std::nullopt;
    bytes.push_back(static_cast<char>(byte));
  }
  return bytes;
}

bool EqualNoCase(std::string_view left, std::string_view right) {
  if (const auto a = ToWindows1250(left), b = ToWindows1250(right); a && b) return EqualNoCase1250(*a, *b);
  return EqualNoCaseAscii(left, right);
}

std::string FoldedName(std::string_view utf8) {
  // The first byte separates the two kinds, since their other bytes could be equal.
  if (const auto bytes = ToWindows1250(utf8)) return '1' + Folded1250(*bytes);
  std::string name = '0' + std::string(utf8);
  std::transform(name.begin(), name.end(), name.begin(), FoldAscii);
  return name;
}

}  // namespace orvanta
