#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

/// The byte order mark that some editors write at the beginning of UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Whether there are letters outside ASCII, and all of them form sequences that are typical of UTF-8.
bool LooksLikeUtf8(std::string_view line);

/// Whether the text is UTF-16, judging by its mark or by the zero bytes beside each letter of a Latin text.
bool LooksLikeUtf16(std::string_view text);

/// Converts UTF-16 of either byte order, with or without a mark, to UTF-8. Invalid characters become U+FFFD.
std::string Utf8OfUtf16(std::string_view text);

}  // namespace orvanta
