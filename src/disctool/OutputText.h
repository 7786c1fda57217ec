#pragma once

#include <string>
#include <string_view>

namespace orvanta {

/// Whether a text is well-formed UTF-8 (RFC 3629).
bool IsUtf8(std::string_view bytes);

/// The text with its control characters written as \x1B and so on, so that no disc can send commands to a
/// terminal. Bytes that are not UTF-8 are written in the same way.
std::string Printable(std::string_view utf8);

/// The text as a JSON string, including the quotes. Bytes that are not UTF-8 become U+FFFD.
std::string JsonText(std::string_view utf8);

/// The text with the characters escaped that have a meaning in HTML.
std::string HtmlText(std::string_view utf8);

}  // namespace orvanta
