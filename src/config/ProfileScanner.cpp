#include "config/ProfileScanner.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "config/ProfileString.h"
#include "config/Windows1250.h"

namespace orvanta {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\v' || c == '\f' || c == '\x1a'; }
bool IsLineEnd(char c) { return c == '\n' || c == '\r'; }

const char* Find(const char* begin, const char* end, char wanted) {
  if (begin == end) return end;
  const void* found = std::memchr(begin, wanted, static_cast<std::size_t>(end - begin));
  return found ? static_cast<const char*>(found) : end;
}

const char* LineEnd(const char* at, const char* end) { return Find(at, Find(at, end, '\n'), '\r'); }

bool OnlyBlanksBefore(const char* begin, const char* at) {
  while (at != begin && IsBlank(at[-1])) --at;
  return at == begin || IsLineEnd(at[-1]);
}

const char* NextHeader(const char* begin, const char* at, const char* end) {
  for (;; ++at) {
    at = Find(at, end, '[');
    if (at == end || OnlyBlanksBefore(begin, at)) return at;
  }
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

bool CanBeName(std::string_view name, std::string_view forbidden) {
  return Trimmed(name).size() == name.size() && name.find_first_of(forbidden) == name.npos;
}

/// `at` is behind the "[".
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
      canMatch_(CanBeName(section, "]\r\n") && CanBeName(key, "=\r\n") && !key.starts_with(';') &&
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

/// Where the section's lines begin, null if it is not here.
const char* ProfileScanner::SkipToSection(const char* begin, const char* end) const {
  for (const char* at = begin; (at = NextHeader(begin, at, end)) != end;) {
    ++at;
    if (NamesSection(at, end, section_)) return LineEnd(at, end);
  }
  return nullptr;
}

bool ProfileScanner::FindKey(const char* begin, const char* end) {
  const char* stop = NextHeader(begin, begin, end);
  for (const char* at = begin; (at = Find(at, stop, '=')) != stop; ++at) {
    if (!NamesKey(begin, at)) continue;
    const char* lineEnd = LineEnd(at, stop);
    value_ = Unquoted(Trimmed({at + 1, Find(at + 1, lineEnd, '\0')})).substr(0, kLongestValue);
    return true;
  }
  return stop != end;
}

/// Read backwards from the "=", since most keys of a section differ at their ends: `Menu1`, `Menu2`.
bool ProfileScanner::NamesKey(const char* begin, const char* equals) const {
  const char* last = equals;
  while (last != begin && IsBlank(last[-1])) --last;
  if (static_cast<std::size_t>(last - begin) < key_.size()) return false;
  const char* first = last - key_.size();
  return EqualNoCase1250({first, key_.size()}, key_) && OnlyBlanksBefore(begin, first);
}

std::string StreamedProfileString(const ByteSource& read, std::string_view section, std::string_view key) {
  constexpr std::size_t kFirstRead = 16 * 1024;
  std::array<char, 64 * 1024> buffer;
  ProfileScanner scanner(section, key);
  if (!scanner.canMatch()) return {};
  std::size_t kept = 0;
  for (std::size_t most = kFirstRead;; most = buffer.size()) {
    std::size_t got = read(std::span(buffer).subspan(kept, std::min(most, buffer.size() - kept)));
    const char* end = buffer.data() + kept + got;
    const char* whole = end;
    if (got != 0) {
      while (whole != buffer.data() && !IsLineEnd(whole[-1])) --whole;
    }
    if (scanner.Take({buffer.data(), whole}) || got == 0) return scanner.value();
    kept = static_cast<std::size_t>(end - whole);
    std::memmove(buffer.data(), whole, kept);
    // The end of a value decides whether it is quoted, so an overlong line gives up its middle, not its end.
    if (kept == buffer.size()) kept /= 2;
  }
}

}  // namespace orvanta
