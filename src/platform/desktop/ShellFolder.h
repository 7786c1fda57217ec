#pragma once

#include <filesystem>
#include <string_view>

namespace orvanta {

/// The folder of the path by which the shell was started, absolute and without `.` and `..`. Links in the
/// path are not resolved: a link to the shell on a disc makes that disc the shell's folder.
///
/// `startedAs` is the first argument of `main()`. With a slash it is a path relative to `currentFolder`;
/// otherwise the program is looked for in `searchPath` (`$PATH`), as whoever started it has done. If that
/// finds no file, the result is the folder of the running executable with all links resolved (proc(5),
/// `/proc/self/exe`).
std::filesystem::path ShellFolder(std::string_view startedAs, const std::filesystem::path& currentFolder,
                                  std::string_view searchPath);

/// The same, with the current folder and the search path of this process.
std::filesystem::path ShellFolder(std::string_view startedAs);

}  // namespace orvanta
