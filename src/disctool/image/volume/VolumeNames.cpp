#include "disctool/image/volume/VolumeNames.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "config/Windows1250.h"
#include "disctool/OutputText.h"
#include "disctool/image/sectors/Fields.h"
#include "platform/Utf8.h"

namespace orvanta {
namespace {

/// The bytes 80 to FF of CP852, from Unicode's mapping table CP852.TXT.
constexpr std::array<char16_t, 128> kCp852 = {
    0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E4, 0x016F, 0x0107, 0x00E7, 0x0142, 0x00EB, 0x0150, 0x0151, 0x00EE,
    0x0179, 0x00C4, 0x0106, 0x00C9, 0x0139, 0x013A, 0x00F4, 0x00F6, 0x013D, 0x013E, 0x015A, 0x015B, 0x00D6,
    0x00DC, 0x0164, 0x0165, 0x0141, 0x00D7, 0x010D, 0x00E1, 0x00ED, 0x00F3, 0x00FA, 0x0104, 0x0105, 0x017D,
    0x017E, 0x0118, 0x0119, 0x00AC, 0x017A, 0x010C, 0x015F, 0x00AB, 0x00BB, 0x2591, 0x2592, 0x2593, 0x2502,
    0x2524, 0x00C1, 0x00C2, 0x011A, 0x015E, 0x2563, 0x2551, 0x2557, 0x255D, 0x017B, 0x017C, 0x2510, 0x2514,
    0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x0102, 0x0103, 0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550,
    0x256C, 0x00A4, 0x0111, 0x0110, 0x010E, 0x00CB, 0x010F, 0x0147, 0x00CD, 0x00CE, 0x011B, 0x2518, 0x250C,
    0x2588, 0x2584, 0x0162, 0x016E, 0x2580, 0x00D3, 0x00DF, 0x00D4, 0x0143, 0x0144, 0x0148, 0x0160, 0x0161,
    0x0154, 0x00DA, 0x0155, 0x0170, 0x00FD, 0x00DD, 0x0163, 0x00B4, 0x00AD, 0x02DD, 0x02DB, 0x02C7, 0x02D8,
    0x00A7, 0x00F7, 0x00B8, 0x00B0, 0x00A8, 0x02D9, 0x0171, 0x0158, 0x0159, 0x25A0, 0x00A0};

/// The Polish letters, capital and small, in either code page.
constexpr std::string_view kPolish1250 =
    "\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF";
constexpr std::string_view kPolish852 =
    "\xA4\x8F\xA8\x9D\xE3\xE0\x97\x8D\xBD\xA5\x86\xA9\x88\xE4\xA2\x98\xAB\xBE";

std::string FromCp852(std::string_view bytes) {
  std::string utf8;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    AppendUtf8(utf8, byte < 0x80 ? byte : kCp852[byte - 0x80]);
  }
  return utf8;
}

std::ptrdiff_t CountOf(std::string_view letters, std::string_view in) {
  return std::ranges::count_if(in, [&](char c) { return letters.find(c) != letters.npos; });
}

}  // namespace

std::string NameInUtf8(std::string_view bytes) {
  if (IsUtf8(bytes)) return std::string(bytes);
  return CountOf(kPolish852, bytes) > CountOf(kPolish1250, bytes) ? FromCp852(bytes) : FromWindows1250(bytes);
}

std::string JolietNameInUtf8(std::string_view bytes) {
  constexpr std::uint32_t kHigh = 0xD800, kLow = 0xDC00, kAfter = 0xE000, kReplacement = 0xFFFD;
  std::string utf8;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    auto character = static_cast<std::uint32_t>(BigEndian(bytes, i, 2));
    const auto next = static_cast<std::uint32_t>(BigEndian(bytes, i + 2, 2));
    // Newer versions of Windows write such pairs for characters above U+FFFF.
    if (character >= kHigh && character < kLow && next >= kLow && next < kAfter) {
      character = 0x10000 + ((character - kHigh) << 10) + (next - kLow);
      i += 2;
    }
    AppendUtf8(utf8, character >= kHigh && character < kAfter ? kReplacement : character);
  }
  return utf8;
}

std::string_view WithoutVersion(std::string_view name) {
  const auto semicolon = name.rfind(';');
  const bool version = semicolon != name.npos && semicolon + 1 < name.size() &&
                       name.find_first_not_of("0123456789", semicolon + 1) == name.npos;
  if (version) name = name.substr(0, semicolon);
  return version && name.ends_with('.') ? name.substr(0, name.size() - 1) : name;
}

bool IsFileName(std::string_view name) {
  constexpr std::string_view kNeverInNames("/\\\0", 3);
  return !name.empty() && name != "." && name != ".." && name.find_first_of(kNeverInNames) == name.npos;
}

}  // namespace orvanta
