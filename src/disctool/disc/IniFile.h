#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvanta {

/// A "key=value" line. Texts are bytes in Windows-1250.
struct IniEntry {
  int line = 0;
  std::string key;
  std::string value;       ///< as the lookup gives it: without blanks and quotes around it, cut at its limit
  std::size_t length = 0;  ///< of the value before it was cut
};

struct IniSection {
  int line = 0;
  std::string name;
  std::vector<IniEntry> entries;
  std::unordered_map<std::string, std::size_t> byName;  ///< folded key to the first entry of that name

  /// The entry that a lookup of `key` finds; null if there is none.
  const IniEntry* Find(std::string_view key) const;
};

/// Something in the file that the lookup passes over or reads otherwise than it looks.
struct IniRemark {
  enum class Kind {
    Utf16,
    ByteOrderMark,
    MixedLineEnds,
    NoBracket,
    NoEquals,
    NoKey,
    AboveSections,
    NulByte,
    Utf8,
    OutsideCodePage
  };
  int line = 0;
  Kind kind = Kind::NoEquals;
};

/// An INI file, line by line, by the rules of `ProfileString`: what a lookup finds there is what `Find` gives
/// here, and beyond that it is known where everything stands.
struct IniFile {
  std::vector<IniSection> sections;  ///< in the order of the file, those of one name too
  std::vector<IniRemark> remarks;    ///< of each kind that concerns characters only the first in a line
  std::unordered_map<std::string, std::size_t> byName;  ///< folded name to the first section of that name

  /// The section that a lookup searches; null if there is none, and for names that no line can carry.
  const IniSection* Find(std::string_view name) const;
};

/// `text` are the bytes of the file.
IniFile ParseIniFile(std::string_view text);

}  // namespace orvanta
