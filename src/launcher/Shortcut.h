#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// What a Windows shortcut leads to. All texts are UTF-8.
struct Shortcut {
  /// Windows paths, the most likely first. A path on the drive of whoever made the disc begins with the
  /// disc's own drive instead.
  std::vector<std::string> targets{};
  std::string arguments{};  ///< a command line
  std::string address{};    ///< "http://...", instead of targets
};

/// In bytes; a larger file is not a shortcut.
inline constexpr std::size_t LargestShortcut = 64 * 1024;

/// Whether the file name ends in .lnk or .url, ignoring case.
bool IsShortcut(std::string_view windowsPath);

/// Reads a .lnk file ("[MS-SHLLINK]: Shell Link Binary File Format", learn.microsoft.com) or a .url file. A
/// relative target is relative to the folder of `windowsPath`, the path of the shortcut. Nothing if it is not
/// a shortcut, or if it leads to a printer or into a network.
std::optional<Shortcut> ReadShortcut(std::string_view windowsPath, std::string_view bytes);

}  // namespace orvanta
