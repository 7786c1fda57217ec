#include "disctool/disc/IniFile.h"

#include <algorithm>

#include "config/Fold1250.h"
#include "config/IniText.h"
#include "config/ProfileString.h"
#include "config/Windows1250.h"
#include "disctool/disc/TextEncoding.h"

namespace orvanta {
namespace {

using Kind = IniRemark::Kind;

/// The bytes that have no character in Windows-1250.
constexpr std::string_view kUndefined = "\x81\x83\x88\x90\x98";

class Reader {
 public:
  explicit Reader(IniFile& file) : file_(file) {}

  void Take(std::string_view line) {
    ++number_;
    if (number_ == 1 && line.starts_with(kByteOrderMark)) Remark(Kind::ByteOrderMark);
    if (line.find('\0') != line.npos) Remark(Kind::NulByte);
    if (LooksLikeUtf8(line)) {
      Remark(Kind::Utf8);
    } else if (line.find_first_of(kUndefined) != line.npos) {
      Remark(Kind::OutsideCodePage);
    }
    const std::string_view text = Trimmed(line, kIniBlanks);
    if (text.empty() || text.front() == ';') return;
    if (text.front() == '[') return Header(text.substr(1));
    Entry(text);
  }

  /// The line break of the last line.
  void End(std::string_view end) {
    if (end_.empty()) end_ = end;
    if (end != end_ && !mixed_) Remark(Kind::MixedLineEnds);
    mixed_ = mixed_ || end != end_;
  }

 private:
  void Remark(Kind kind) { file_.remarks.push_back({number_, kind}); }

  void Header(std::string_view text) {
    if (text.find(']') == text.npos) Remark(Kind::NoBracket);
    const std::string name(IniName(text.substr(0, text.find(']'))));
    file_.byName.try_emplace(Folded1250(name), file_.sections.size());
    file_.sections.push_back({number_, name, {}, {}});
  }

  void Entry(std::string_view text) {
    const auto equals = text.find('=');
    if (equals == text.npos) return Remark(Kind::NoEquals);
    const std::string_view key = IniName(text.substr(0, equals));
    if (key.empty()) return Remark(Kind::NoKey);
    if (file_.sections.empty()) return Remark(Kind::AboveSections);
    const std::string_view value = IniValue(text.substr(equals + 1));
    IniSection& section = file_.sections.back();
    section.byName.try_emplace(Folded1250(key), section.entries.size());
    section.entries.push_back(
        {number_, std::string(key), std::string(value.substr(0, kLongestValue)), value.size()});
  }

  IniFile& file_;
  int number_ = 0;
  std::string_view end_;
  bool mixed_ = false;
};

}  // namespace

const IniEntry* IniSection::Find(std::string_view key) const {
  const auto found = byName.find(Folded1250(IniName(key)));
  return found == byName.end() ? nullptr : &entries[found->second];
}

const IniSection* IniFile::Find(std::string_view name) const {
  const auto found = byName.find(Folded1250(IniName(name)));
  return found == byName.end() ? nullptr : &sections[found->second];
}

IniFile ParseIniFile(std::string_view text) {
  IniFile file;
  Reader reader(file);
  if (LooksLikeUtf16(text)) file.remarks.push_back({1, Kind::Utf16});
  while (!text.empty()) {
    const auto length = std::min(text.find_first_of("\r\n"), text.size());
    reader.Take(text.substr(0, length));
    const bool pair = text.substr(length).starts_with("\r\n");
    const std::string_view end = text.substr(length, pair ? 2 : 1);
    if (!end.empty()) reader.End(end);
    text.remove_prefix(length + end.size());
  }
  return file;
}

}  // namespace orvanta
