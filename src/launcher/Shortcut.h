#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// Where a shortcut of Windows leads. All texts are UTF-8.
struct Shortcut {
  /// Windows paths, the likeliest first. What lay on the drive of whoever made the disc begins with the
  /// disc's own drive.
  std::vector<std::string> targets{};
  std::string arguments{};  ///< a command line
  std::string address{};    ///< "http://..." in place of targets
};

/// Larger files are not shortcuts.
inline constexpr std::size_t LargestShortcut = 64 * 1024;

/// The file is called .lnk or .url, in any mix of capitals.
bool IsShortcut(std::string_view windowsPath);

/// Reads a .lnk file ("[MS-SHLLINK]: Shell Link Binary File Format", learn.microsoft.com) or a .url file. A
/// relative target counts from the folder of `windowsPath`, the shortcut's own path. Nothing for what is not
/// a shortcut, and for one that leads to a printer or into a network.
std::optional<Shortcut> ReadShortcut(std::string_view windowsPath, std::string_view bytes);

}  // namespace orvanta
