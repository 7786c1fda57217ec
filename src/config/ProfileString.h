#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvanta {

/// The longest value in bytes; what is longer is cut there.
inline constexpr int kLongestValue = 254;

/// Reads one key of an INI file, bytes in Windows-1250. A file, section or key that is not there gives the
/// empty string; so do folders, pipes, terminals and devices without an end. The file is read anew at each
/// call, only as far as needed, and nothing is kept.
///
/// The rules are those of the platform call GetPrivateProfileStringA:
/// - CR, LF and CRLF end a line. Space, tab, VT, FF and Ctrl+Z are blanks around names and values.
/// - "[name]" opens a section. What follows the first "]" is ignored; without one the name ends with the
/// line.
///   Only the first section of a name is searched, and keys above the first section cannot be reached.
/// - "key=value": the first "=" splits, and the first line with the key counts. A line that begins with ";"
/// is
///   a comment; a line without "=" is passed over.
/// - Names match without regard to case. The names asked for are not trimmed.
/// - A value ends at a NUL, loses the blanks around it, then one pair of equal quotes around it.
std::string ProfileString(const std::filesystem::path& file, std::string_view section, std::string_view key);

/// The same for a text in memory.
std::string ProfileStringOf(std::string_view text, std::string_view section, std::string_view key);

}  // namespace orvanta
