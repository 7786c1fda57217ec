#include "config/ReferenceLookup.h"

#include <vector>

namespace orvanta::test {
namespace {

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines(1);
  for (char c : text) {
    if (c == '\r' || c == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  return lines;
}

std::string Trim(std::string text) {
  const auto blank = [](char c) { return std::string(" \t\v\f\x1a").find(c) != std::string::npos; };
  while (!text.empty() && blank(text.front())) text.erase(0, 1);
  while (!text.empty() && blank(text.back())) text.pop_back();
  return text;
}

std::string Lower(std::string_view text) {
  const std::string capitals =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZ\x8A\x8C\x8D\x8E\x8F\xA3\xA5\xAA\xAF\xBC"
      "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF"
      "\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8\xD9\xDA\xDB\xDC\xDD\xDE";
  const std::string small =
      "abcdefghijklmnopqrstuvwxyz\x9A\x9C\x9D\x9E\x9F\xB3\xB9\xBA\xBF\xBE"
      "\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF"
      "\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE";
  std::string lower(text);
  for (char& c : lower) {
    if (const auto at = capitals.find(c); at != std::string::npos) c = small[at];
  }
  return lower;
}

std::string ValueOf(std::string text) {
  text = Trim(text.substr(0, text.find('\0')));
  const bool quoted = text.size() >= 2 && (text[0] == '"' || text[0] == '\'') && text.back() == text[0];
  if (quoted) text = text.substr(1, text.size() - 2);
  return text.substr(0, 254);
}

}  // namespace

std::string ReferenceLookup(std::string_view text, std::string_view section, std::string_view key) {
  bool inSection = false;
  for (const std::string& raw : LinesOf(text)) {
    const std::string line = Trim(raw);
    if (line.starts_with('[')) {
      if (inSection) return "";
      inSection = Lower(Trim(line.substr(1, line.find(']') - 1))) == Lower(section);
      continue;
    }
    const auto equals = line.find('=');
    if (!inSection || line.starts_with(';') || equals == std::string::npos) continue;
    if (Lower(Trim(line.substr(0, equals))) == Lower(key)) return ValueOf(line.substr(equals + 1));
  }
  return "";
}

}  // namespace orvanta::test
