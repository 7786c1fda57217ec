#include "config/ProfileScanner.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "config/ByteSearch.h"
#include "config/Fold1250.h"
#include "config/IniText.h"
#include "config/ProfileString.h"

namespace orvanta {
namespace {

bool IsLineEnd(char c) { return c == '\n' || c == '\r'; }

const char* Find(const char* begin, const char* end, char wanted) {
  if (begin == end) return end;
  const void* found = std::memchr(begin, wanted, static_cast<std::size_t>(end - begin));
  return found ? static_cast<const char*>(found) : end;
}

const char* LineEnd(const char* at, const char* end) { return Find(at, Find(at, end, '\n'), '\r'); }

/// The position after the last line break; `begin` if there is none.
const char* LastLineEnd(const char* begin, const char* end) {
  while (end != begin && !IsLineEnd(end[-1])) --end;
  return end;
}

/// Rules out most candidates by the one byte beside them: a visible ASCII character that is not the expected
/// letter in either case.
bool CannotMatch(char found, char asked) { return IsVisibleAscii(found) && !IsSameLetter(found, asked); }

bool OnlyBlanksBefore(const char* begin, const char* at) {
  while (at != begin && IsIniBlank(at[-1])) --at;
  return at == begin || IsLineEnd(at[-1]);
}

std::string_view Between(const char* begin, const char* end) {
  return {begin, static_cast<std::size_t>(end - begin)};
}

bool CanBeName(std::string_view name, char forbidden) {
  return std::none_of(name.begin(), name.end(),
                      [forbidden](char c) { return c == forbidden || IsLineEnd(c); });
}

/// `at` is after the "[".
bool NamesSection(const char* at, const char* end, std::string_view section) {
  while (at != end && IsIniBlank(*at)) ++at;
  if (static_cast<std::size_t>(end - at) < section.size()) return false;
  if (!EqualNoCase1250({at, section.size()}, section)) return false;
  at += section.size();
  while (at != end && IsIniBlank(*at)) ++at;
  return at == end || *at == ']' || IsLineEnd(*at);
}

}  // namespace

ProfileScanner::ProfileScanner(std::string_view section, std::string_view key)
    : section_(IniName(section)),
      key_(IniName(key)),
      canMatch_(CanBeName(section_, ']') && CanBeName(key_, '=') && !key_.starts_with(';') &&
                !key_.starts_with('[')) {}

bool ProfileScanner::Take(std::string_view lines) {
  if (!canMatch_) return true;
  const char* begin = lines.data();
  const char* end = begin + lines.size();
  if (!inSection_) begin = SkipToSection(begin, end);
  if (!begin) return false;
  inSection_ = true;
  return FindKey(begin, end);
}

/// Where the lines of the section begin; null if it is not in this text.
const char* ProfileScanner::SkipToSection(const char* begin, const char* end) const {
  const char first = section_.empty() ? ']' : section_[0];
  const char* header = FindAccepted<'['>(begin, end, Anywhere{}, [=, section = section_](const char* at) {
    if (at + 1 != end && CannotMatch(at[1], first)) return false;
    return NamesSection(at + 1, end, section) && OnlyBlanksBefore(begin, at);
  });
  return header == end ? nullptr : LineEnd(header, end);
}

bool ProfileScanner::FindKey(const char* begin, const char* end) {
  const char last = key_.empty() ? '\n' : key_.back();
  const char* stop = FindAccepted<'[', '='>(begin, end, PrecededBy{last}, [=, this](const char* at) {
    return *at == '[' ? OnlyBlanksBefore(begin, at) : NamesKey(begin, at);
  });
  if (stop == end) return false;
  if (*stop == '=') value_ = IniValue(Between(stop + 1, LineEnd(stop, end))).substr(0, kLongestValue);
  return true;
}

/// Compares backwards from the "=", since most keys of a section differ in their last characters: `Menu1`,
/// `Menu2`.
bool ProfileScanner::NamesKey(const char* begin, const char* equals) const {
  const char* last = equals;
  while (last != begin && IsIniBlank(last[-1])) --last;
  if (static_cast<std::size_t>(last - begin) < key_.size()) return false;
  const char* first = last - key_.size();
  return EqualNoCase1250({first, key_.size()}, key_) && OnlyBlanksBefore(begin, first);
}

std::string StreamedProfileString(const ByteSource& read, std::string_view section, std::string_view key) {
  // Each piece is read to the same aligned address, and the rest of the line before is put in front of it:
  // the system copies whole pages to page boundaries fastest.
  alignas(4096) std::array<char, 2 * kPiece> buffer;
  char* const piece = buffer.data() + kPiece;
  ProfileScanner scanner(section, key);
  if (!scanner.CanMatch()) return {};
  std::size_t kept = 0;
  for (;;) {
    const std::size_t got = read({piece, kPiece});
    const char* const begin = piece - kept;
    const char* const end = piece + got;
    const char* const whole = got == 0 ? end : LastLineEnd(begin, end);
    if (scanner.Take(Between(begin, whole)) || got == 0) return scanner.value();
    // Only the end of a value shows whether it is quoted, so an overlong line loses its middle, not its end.
    kept = std::min(static_cast<std::size_t>(end - whole), kPiece);
    std::memmove(piece - kept, whole, kept);
  }
}

}  // namespace orvanta
