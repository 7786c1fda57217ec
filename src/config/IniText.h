#pragma once

#include <cstdint>
#include <string_view>

#include "platform/AsciiText.h"

namespace orvanta {

/// What counts as a blank around the names and values of an INI file, Ctrl+Z included.
inline constexpr std::string_view kIniBlanks = " \t\v\f\x1a";

constexpr bool IsIniBlank(char c) {
  constexpr std::uint64_t kMask = [] {
    std::uint64_t mask = 0;
    for (const char blank : kIniBlanks) mask |= std::uint64_t{1} << blank;
    return mask;
  }();
  const auto byte = static_cast<unsigned char>(c);
  return byte <= ' ' && (kMask >> byte & 1) != 0;
}

/// The name that is meant by `text`, in a file or in a question: the blanks around it do not count.
constexpr std::string_view IniName(std::string_view text) { return Trimmed(text, kIniBlanks); }

/// The value that a line has in `text`, all that follows its "=". It ends at a NUL, loses the blanks around
/// it and then one pair of equal quotes around it. However long, it is not cut.
constexpr std::string_view IniValue(std::string_view text) {
  const std::string_view value = Trimmed(text.substr(0, text.find('\0')), kIniBlanks);
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace orvanta
