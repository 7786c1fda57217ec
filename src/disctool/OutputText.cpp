#include "disctool/OutputText.h"

#include <cstddef>

namespace orvanta {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// The length of the well-formed character at the start of `text`; 0 if there is none.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((byte(i) & 0xC0) != 0x80) return 0;
  // Reject overlong forms, surrogates and numbers above U+10FFFF (RFC 3629, section 4).
  if ((lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) > 0x9F)) return 0;
  if ((lead == 0xF0 && byte(1) < 0x90) || (lead == 0xF4 && byte(1) > 0x8F)) return 0;
  return length;
}

std::string Hexadecimal(unsigned char byte) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  return {kDigits[byte >> 4], kDigits[byte & 15]};
}

/// Whether it is a C0 or C1 control character or DEL.
bool IsControl(std::string_view character) {
  const auto first = static_cast<unsigned char>(character[0]);
  if (character.size() == 1) return first < 0x20 || first == 0x7F;
  return first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
}

/// Calls `good` with each well-formed character, and `bad` with each byte that is not part of one.
template <class Good, class Bad>
void ForEachCharacter(std::string_view text, Good good, Bad bad) {
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    if (length == 0) {
      bad(static_cast<unsigned char>(text.front()));
    } else {
      good(text.substr(0, length));
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
}

}  // namespace

bool IsUtf8(std::string_view bytes) {
  bool good = true;
  ForEachCharacter(
      bytes, [](std::string_view) {}, [&good](unsigned char) { good = false; });
  return good;
}

std::string Printable(std::string_view utf8) {
  std::string text;
  const auto escape = [&](unsigned char byte) { text += "\\x" + Hexadecimal(byte); };
  ForEachCharacter(
      utf8,
      [&](std::string_view character) {
        if (IsControl(character)) return escape(static_cast<unsigned char>(character.back()));
        text += character;
      },
      escape);
  return text;
}

std::string JsonText(std::string_view utf8) {
  std::string text = "\"";
  ForEachCharacter(
      utf8,
      [&](std::string_view character) {
        if (character == "\"" || character == "\\") text += '\\';
        if (IsControl(character)) {
          text += "\\u00" + Hexadecimal(static_cast<unsigned char>(character.back()));
        } else {
          text += character;
        }
      },
      [&](unsigned char) { text += kReplacement; });
  return text + '"';
}

std::string HtmlText(std::string_view utf8) {
  std::string text;
  for (const char c : Printable(utf8)) {
    switch (c) {
      case '&': text += "&amp;"; break;
      case '<': text += "&lt;"; break;
      case '>': text += "&gt;"; break;
      case '"': text += "&quot;"; break;
      default: text += c;
    }
  }
  return text;
}

}  // namespace orvanta
