#pragma once

#include <filesystem>
#include <string_view>

namespace orvanta {

/// The folder of the path that the shell was started by, absolute and without `.` and `..`. Links in the
/// path are kept: a link to the shell that lies on a disc makes that disc the shell's folder.
///
/// `startedAs` is the first argument of `main()`. With a slash it is a path from `currentFolder`; without one
/// the program is looked for in `searchPath` (`$PATH`), as the starter did. Where that leads to no file, it
/// is the folder of the running executable, its links resolved (proc(5), `/proc/self/exe`).
std::filesystem::path ShellFolder(std::string_view startedAs, const std::filesystem::path& currentFolder,
                                  std::string_view searchPath);

/// The same with the current folder and the search path of this process.
std::filesystem::path ShellFolder(std::string_view startedAs);

}  // namespace orvanta
