#include "disctool/disc/TextEncoding.h"

#include <array>
#include <cstdint>

#include "platform/Utf8.h"

namespace orvanta {
namespace {

constexpr std::string_view kLittleMark = "\xFF\xFE", kBigMark = "\xFE\xFF";

}  // namespace

bool LooksLikeUtf8(std::string_view line) {
  bool any = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const auto lead = static_cast<unsigned char>(line[i]);
    if (lead < 0x80) continue;
    const std::size_t more = lead >= 0xC2 && lead < 0xE0 ? 1 : (lead & 0xF0) == 0xE0 ? 2 : 0;
    if (more == 0 || i + more >= line.size()) return false;
    for (std::size_t k = 1; k <= more; ++k)
      if ((static_cast<unsigned char>(line[i + k]) & 0xC0) != 0x80) return false;
    i += more;
    any = true;
  }
  return any;
}

bool LooksLikeUtf16(std::string_view text) {
  constexpr std::size_t kEnough = 16;
  if (text.starts_with(kLittleMark) || text.starts_with(kBigMark)) return true;
  if (text.size() < kEnough) return false;
  std::array<std::size_t, 2> noughts{};
  for (std::size_t i = 0; i < kEnough; ++i) noughts[i % 2] += text[i] == '\0' ? 1U : 0U;
  return noughts[0] + noughts[1] == kEnough / 2 && (noughts[0] == 0 || noughts[1] == 0);
}

std::string Utf8OfUtf16(std::string_view text) {
  constexpr std::uint32_t kReplacement = 0xFFFD;
  const bool big = text.starts_with(kBigMark) || (!text.starts_with(kLittleMark) && text.starts_with('\0'));
  if (text.starts_with(kLittleMark) || text.starts_with(kBigMark)) text.remove_prefix(2);
  const auto unit = [&](std::size_t at) {
    const auto first = static_cast<unsigned char>(text[at]),
               second = static_cast<unsigned char>(text[at + 1]);
    return static_cast<std::uint32_t>(big ? first << 8 | second : second << 8 | first);
  };
  std::string utf8;
  for (std::size_t at = 0; at + 1 < text.size(); at += 2) {
    const std::uint32_t high = unit(at);
    const bool leads = high >= 0xD800 && high < 0xDC00 && at + 3 < text.size();
    const std::uint32_t low = leads ? unit(at + 2) : 0;
    if (low >= 0xDC00 && low < 0xE000) {
      AppendUtf8(utf8, 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00));
      at += 2;
    } else {
      AppendUtf8(utf8, high >= 0xD800 && high < 0xE000 ? kReplacement : high);
    }
  }
  return utf8;
}

}  // namespace orvanta
