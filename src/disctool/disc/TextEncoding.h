#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

/// The mark that some editors write at the beginning of UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Letters beyond ASCII, all of them in sequences that only UTF-8 makes.
bool LooksLikeUtf8(std::string_view line);

/// By its mark, or by the noughts that UTF-16 puts beside each letter of a Latin text.
bool LooksLikeUtf16(std::string_view text);

/// A text in UTF-16 of either byte order, with or without a mark, in UTF-8. What is no character becomes
/// U+FFFD.
std::string Utf8OfUtf16(std::string_view text);

}  // namespace orvanta
