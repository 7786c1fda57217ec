#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvanta {

/// A line "key=value". Texts are bytes in Windows-1250.
struct IniEntry {
  int line = 0;
  std::string key;
  std::string value;  ///< as the lookup returns it: without surrounding blanks and quotes, cut at the limit
  std::size_t length = 0;  ///< the length of the value before it was cut
};

struct IniSection {
  int line = 0;
  std::string name;
  std::vector<IniEntry> entries;
  std::unordered_map<std::string, std::size_t> byName;  ///< maps a folded key to its first entry

  /// The entry that a lookup finds; null if there is none.
  const IniEntry* Find(std::string_view key) const;
};

/// Something in the file that the lookup ignores, or reads in another way than a maker would expect.
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

/// An INI file, line by line, by the rules of `ProfileString`: `Find` finds the same as a lookup, and also
/// tells in which line it is.
struct IniFile {
  std::vector<IniSection> sections;  ///< in the order of the file, including repeated ones
  std::vector<IniRemark> remarks;    ///< only the first one in a line for each kind about characters
  std::unordered_map<std::string, std::size_t> byName;  ///< maps a folded name to its first section

  /// The section that a lookup searches; null if there is none, or if no line can have that name.
  const IniSection* Find(std::string_view name) const;
};

/// `text` is the bytes of the file.
IniFile ParseIniFile(std::string_view text);

}  // namespace orvanta
