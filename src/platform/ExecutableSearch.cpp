#include "platform/ExecutableSearch.h"

#include <unistd.h>

#include <system_error>

namespace orvanta {
namespace {

bool IsExecutable(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(path, ignored) && access(path.c_str(), X_OK) == 0;
}

}  // namespace

std::optional<std::filesystem::path> FindExecutable(std::string_view name, std::string_view searchPath) {
  if (name.empty()) return std::nullopt;
  if (name.find('/') != std::string_view::npos)
    return IsExecutable(name) ? std::optional<std::filesystem::path>(name) : std::nullopt;
  // An empty search path means that there are no folders, not the current one.
  if (searchPath.empty()) return std::nullopt;
  for (;;) {
    const auto colon = searchPath.find(':');
    const std::filesystem::path folder = colon == 0 || searchPath.empty() ? "." : searchPath.substr(0, colon);
    if (IsExecutable(folder / name)) return folder / name;
    if (colon == std::string_view::npos) return std::nullopt;
    searchPath.remove_prefix(colon + 1);
  }
}

}  // namespace orvanta
