#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace orvanta {

/// Finds one key in the text of an INI file. The text may come in pieces; the search ends as soon as the
/// answer is known. Nothing is parsed that is not asked for: the search jumps from '[' to '[' until it meets
/// the section, and from '=' to '=' inside it.
class ProfileScanner {
 public:
  /// The two names must outlive the scanner.
  ProfileScanner(std::string_view section, std::string_view key);

  /// False for names that no line can carry, such as a key with an equals sign or a name with blanks around
  /// it.
  bool canMatch() const { return canMatch_; }

  /// Goes on with `lines`: whole lines that follow those of the call before, the last perhaps without its
  /// end. Returns true once more text cannot change the answer; it must not be called again after that.
  bool Take(std::string_view lines);

  /// The value, empty while the key has not been met.
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

/// Fills a part of the buffer and says how much; 0 at the end of the text.
using ByteSource = std::function<std::size_t(std::span<char>)>;

/// How much is asked for at a time; two of them fit into a processor's first cache.
inline constexpr std::size_t kPiece = 16 * 1024;

/// Looks `key` up in a text that `read` supplies piece by piece, and asks for no more than it needs. It takes
/// the same memory for every text: a line longer than a piece loses its middle.
std::string StreamedProfileString(const ByteSource& read, std::string_view section, std::string_view key);

}  // namespace orvanta
