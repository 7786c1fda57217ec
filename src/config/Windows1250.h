#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

/// Windows-1250 to UTF-8. Every byte has a character: the five that the code page leaves undefined stand for
/// the control character of the same number, so that every text comes back from `ToWindows1250` as it was.
std::string FromWindows1250(std::string_view bytes);

/// UTF-8 to Windows-1250, nothing if the text is no valid UTF-8 or has a character outside the code page.
std::optional<std::string> ToWindows1250(std::string_view utf8);

/// Two texts in UTF-8 are the same but for small and capital letters. Outside Windows-1250 only the letters A
/// to Z are matched without regard to case.
bool EqualNoCase(std::string_view left, std::string_view right);

/// A key for a name in UTF-8: two names have the same key just when `EqualNoCase` holds them for the same. It
/// has one byte for each letter of Windows-1250, so that keys can be compared letter by letter.
std::string FoldedName(std::string_view utf8);

}  // namespace orvanta
