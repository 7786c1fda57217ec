#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace orvanta::test {

inline std::string Trimmed(std::string text) {
  constexpr const char* kBlanks = " \t\v\f\x1a";
  text.erase(0, std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

inline std::string Lowered(std::string_view text) {
  const std::string capitals =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZ\x8A\x8C\x8D\x8E\x8F\xA3\xA5\xAA\xAF\xBC"
      "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF"
      "\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8\xD9\xDA\xDB\xDC\xDD\xDE";
  const std::string small =
      "abcdefghijklmnopqrstuvwxyz\x9A\x9C\x9D\x9E\x9F\xB3\xB9\xBA\xBF\xBE"
      "\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF"
      "\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE";
  std::string lower(text);
  for (char& c : lower) c = capitals.find(c) == capitals.npos ? c : small[capitals.find(c)];
  return lower;
}

/// The rules of `ProfileString`, written as slowly and plainly as possible, to compare it with.
inline std::string ReferenceLookup(std::string_view text, std::string_view askedSection,
                                   std::string_view askedKey) {
  const std::string section = Trimmed(std::string(askedSection)), key = Trimmed(std::string(askedKey));
  bool inSection = false;
  for (std::string rest = std::string(text) + '\n'; !rest.empty();) {
    const std::string line = Trimmed(rest.substr(0, rest.find_first_of("\r\n")));
    rest.erase(0, rest.find_first_of("\r\n") + 1);
    if (line.starts_with('[')) {
      if (inSection) return "";
      inSection = Lowered(Trimmed(line.substr(1, line.find(']') - 1))) == Lowered(section);
    }
    const auto equals = line.find('=');
    if (!inSection || line.starts_with('[') || line.starts_with(';') || equals == line.npos) continue;
    if (Lowered(Trimmed(line.substr(0, equals))) != Lowered(key)) continue;
    std::string value = line.substr(equals + 1);
    value = Trimmed(value.substr(0, value.find('\0')));
    const bool quotes =
        value.size() >= 2 && (value[0] == '"' || value[0] == '\'') && value.back() == value[0];
    return quotes ? value.substr(1, value.size() - 2).substr(0, 254) : value.substr(0, 254);
  }
  return "";
}

}  // namespace orvanta::test
