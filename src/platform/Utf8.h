#pragma once

#include <string>

namespace orvanta {

/// Appends a character, up to U+10FFFF, as UTF-8.
inline void AppendUtf8(std::string& text, char32_t character) {
  const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80) return add(character);
  if (character < 0x800) {
    add(0xC0 | character >> 6);
  } else if (character < 0x10000) {
    add(0xE0 | character >> 12);
    add(0x80 | (character >> 6 & 0x3F));
  } else {
    add(0xF0 | character >> 18);
    add(0x80 | (character >> 12 & 0x3F));
    add(0x80 | (character >> 6 & 0x3F));
  }
  add(0x80 | (character & 0x3F));
}

}  // namespace orvanta
