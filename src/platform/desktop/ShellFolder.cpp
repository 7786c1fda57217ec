#include "platform/desktop/ShellFolder.h"

#include <cstdlib>
#include <system_error>

#include "platform/ExecutableSearch.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// After a link to a folder, `..` is the parent of the link's target, so removing both names could lead
/// elsewhere. The path is only simplified if it still leads to the same file.
fs::path Tidied(const fs::path& path) {
  std::error_code error;
  const fs::path tidied = path.lexically_normal();
  return fs::equivalent(tidied, path, error) && !error ? tidied : path;
}

fs::path RunningExecutable() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error);
}

}  // namespace

fs::path ShellFolder(std::string_view startedAs, const fs::path& currentFolder, std::string_view searchPath) {
  std::error_code error;
  fs::path program = startedAs;
  if (startedAs.find('/') == std::string_view::npos)
    program = FindExecutable(startedAs, searchPath).value_or(fs::path());
  if (!program.empty()) program = currentFolder / program;
  if (program.empty() || !fs::is_regular_file(program, error)) program = RunningExecutable();
  return Tidied(program).parent_path();
}

fs::path ShellFolder(std::string_view startedAs) {
  std::error_code error;
  const char* searchPath = std::getenv("PATH");
  return ShellFolder(startedAs, fs::current_path(error), searchPath ? searchPath : "");
}

}  // namespace orvanta
