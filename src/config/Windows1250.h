#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

/// Converts Windows-1250 to UTF-8. Every byte has a character: the five bytes that the code page leaves
/// undefined become the control characters of the same number, so that `ToWindows1250` restores every text
/// exactly.
std::string FromWindows1250(std::string_view bytes);

/// Converts UTF-8 to Windows-1250; nothing if the text is not valid UTF-8 or has a character that is not in
/// the code page.
std::optional<std::string> ToWindows1250(std::string_view utf8);

/// Whether two texts in UTF-8 are equal, ignoring case. If a text has characters outside Windows-1250, only A
/// to Z match regardless of case.
bool EqualNoCase(std::string_view left, std::string_view right);

/// A key for a name in UTF-8: two names have the same key exactly if `EqualNoCase` holds for them. Each
/// letter of Windows-1250 takes one byte, so that keys can be compared letter by letter.
std::string FoldedName(std::string_view utf8);

}  // namespace orvanta
