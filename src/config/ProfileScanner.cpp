#include "config/ProfileScanner.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "config/ByteSearch.h"
#include "config/Fold1250.h"
#include "config/ProfileString.h"

namespace orvanta {
namespace {

bool IsBlank(char c) {
  constexpr std::uint64_t kBlanks = 1ull << ' ' | 1ull << '\t' | 1ull << '\v' | 1ull << '\f' | 1ull << 0x1A;
  const auto byte = static_cast<unsigned char>(c);
  return byte <= ' ' && (kBlanks >> byte & 1) != 0;
}
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
bool CannotMatch(char found, char asked) { return found > ' ' && ((found ^ asked) & ~0x20) != 0; }

bool OnlyBlanksBefore(const char* begin, const char* at) {
  while (at != begin && IsBlank(at[-1])) --at;
  return at == begin || IsLineEnd(at[-1]);
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view Unquoted(std::string_view text) {
  if (text.size() < 2 || text.front() != text.back()) return text;
  if (text.front() != '"' && text.front() != '\'') return text;
  return text.substr(1, text.size() - 2);
}

std::string ValueOf(std::string_view text) {
  return std::string(Unquoted(Trimmed(text.substr(0, text.find('\0')))).substr(0, kLongestValue));
}

bool CanBeName(std::string_view name, char forbidden) {
  if (!name.empty() && (IsBlank(name.front()) || IsBlank(name.back()))) return false;
  return std::none_of(name.begin(), name.end(),
                      [forbidden](char c) { return c == forbidden || IsLineEnd(c); });
}

/// `at` is after the "[".
bool NamesSection(const char* at, const char* end, std::string_view section) {
  while (at != end && IsBlank(*at)) ++at;
  if (static_cast<std::size_t>(end - at) < section.size()) return false;
  if (!EqualNoCase1250({at, section.size()}, section)) return false;
  at += section.size();
  while (at != end && IsBlank(*at)) ++at;
  return at == end || *at == ']' || IsLineEnd(*at);
}

}  // namespace

ProfileScanner::ProfileScanner(std::string_view section, std::string_view key)
    : section_(section),
      key_(key),
      canMatch_(CanBeName(section, ']') && CanBeName(key, '=') && !key.starts_with(';') &&
                !key.starts_with('[')) {}

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
  const char* stop = FindAccepted<'[', '='>(begin, end, Behind{last}, [=, this](const char* at) {
    return *at == '[' ? OnlyBlanksBefore(begin, at) : NamesKey(begin, at);
  });
  if (stop == end) return false;
  if (*stop == '=') value_ = ValueOf({stop + 1, LineEnd(stop, end)});
  return true;
}

/// Compares backwards from the "=", since most keys of a section differ in their last characters: `Menu1`,
/// `Menu2`.
bool ProfileScanner::NamesKey(const char* begin, const char* equals) const {
  const char* last = equals;
  while (last != begin && IsBlank(last[-1])) --last;
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
  if (!scanner.canMatch()) return {};
  std::size_t kept = 0;
  for (;;) {
    const std::size_t got = read({piece, kPiece});
    const char* const begin = piece - kept;
    const char* const end = piece + got;
    const char* const whole = got == 0 ? end : LastLineEnd(begin, end);
    if (scanner.Take({begin, whole}) || got == 0) return scanner.value();
    // Only the end of a value shows whether it is quoted, so an overlong line loses its middle, not its end.
    kept = std::min(static_cast<std::size_t>(end - whole), kPiece);
    std::memmove(piece - kept, whole, kept);
  }
}

}  // namespace orvanta
