#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvanta {

/// The length in bytes after which a value is cut.
inline constexpr int kLongestValue = 254;

/// Reads one key of an INI file; all texts are bytes in Windows-1250. The result is empty if the file, the
/// section or the key does not exist, and for folders, pipes, terminals and endless devices. The file is read
/// anew at each call, only as far as needed, and nothing is cached.
///
/// The rules are those of the platform call GetPrivateProfileStringA:
/// - CR, LF and CRLF end a line. Space, tab, VT, FF and Ctrl+Z are blanks around names and values.
/// - "[name]" opens a section. Text after the first "]" is ignored; without one the name ends with the line.
/// - Only the first section of a name is searched, and keys above the first section cannot be reached.
/// - "key=value" is split at the first "=", and the first line with the key counts. A line that begins with
///   ";" is a comment; a line without "=" is ignored.
/// - Names match whatever their case. Blanks around the names that are looked up do not count.
/// - A value ends at a NUL. Blanks around it are removed, and then one pair of equal quotes.
std::string ProfileString(const std::filesystem::path& file, std::string_view section, std::string_view key);

/// The same for a text in memory.
std::string ProfileStringOf(std::string_view text, std::string_view section, std::string_view key);

}  // namespace orvanta
