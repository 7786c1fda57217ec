#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace orvanta {

/// Finds one key in the text of an INI file. The text may come in pieces; the search ends as soon as the
/// answer is known. Nothing is parsed needlessly: the search jumps from '[' to '[' until it finds the
/// section, and then from '=' to '='.
class ProfileScanner {
 public:
  /// Both names must outlive the scanner. Blanks around them do not count.
  ProfileScanner(std::string_view section, std::string_view key);

  /// False if no line can match the names, for instance because the key contains an equals sign.
  bool CanMatch() const { return canMatch_; }

  /// Continues with `lines`: whole lines that follow those of the previous call; only the last one may lack
  /// its line break. Returns true once further text cannot change the answer; then it must not be called
  /// again.
  bool Take(std::string_view lines);

  /// The value; empty until the key is found.
  const std::string& value() const { return value_; }

 private:
  const char* SkipToSection(const char* begin, const char* end) const;
  bool FindKey(const char* begin, const char* end);
  bool NamesKey(const char* begin, const char* equals) const;

  std::string_view section_;
  std::string_view key_;
  std::string value_;
  bool canMatch_;
  bool inSection_ = false;
};

/// Fills the buffer or a part of it and returns the number of bytes; 0 at the end of the text.
using ByteSource = std::function<std::size_t(std::span<char>)>;

/// How many bytes are requested at a time; two pieces fit into a processor's first-level cache.
inline constexpr std::size_t kPiece = 16 * 1024;

/// Looks `key` up in a text that `read` supplies piece by piece, and reads no more than it needs. It uses the
/// same amount of memory for every text: of a line longer than a piece, the middle is dropped.
std::string StreamedProfileString(const ByteSource& read, std::string_view section, std::string_view key);

}  // namespace orvanta
