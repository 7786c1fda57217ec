#include "config/DiscDrive.h"

#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "config/Windows1250.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// The longest path that Windows supports; it limits the work on a path.
constexpr std::size_t kLongestPath = 32767;

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

/// Where a path without a drive starts. If the current directory lies below `root`, its names are put into
/// `names` and the result is `root`.
fs::path LeaveCurrentDirectory(const fs::path& root, std::vector<std::string>& names) {
  std::error_code error;
  const fs::path here = fs::current_path(error);
  const fs::path below = here.lexically_relative(root);
  const bool inside = !below.empty() && *below.begin() != "..";
  AddNames(names, (inside ? below : here).string());
  return inside ? root : here.root_path();
}

}  // namespace

DiscDrive::DiscDrive(std::filesystem::path root, char letter) : root_(std::move(root)), letter_(letter) {}

FoundPath DiscDrive::Find(std::string_view path, const PathLookup& files) const {
  if (path.empty()) return {FoundPath::Outcome::FileMissing};
  if (path.size() > kLongestPath || path.find('\0') != path.npos) return {};
  const bool hasDrive = HasDrive(path);
  const bool rooted = IsSeparator(path[0]);
  if (hasDrive && !EqualNoCase(path.substr(0, 1), {&letter_, 1})) return {};
  if (rooted && path.size() >= 2 && IsSeparator(path[1])) return {};
  std::vector<std::string> names;
  const fs::path start = hasDrive || rooted ? root_ : LeaveCurrentDirectory(root_, names);
  AddNames(names, hasDrive ? path.substr(2) : path);
  return WalkPath(files, start, names);
}

}  // namespace orvanta
