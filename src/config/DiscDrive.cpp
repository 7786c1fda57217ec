#include "config/DiscDrive.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "config/Windows1250.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;
using Outcome = HostPath::Outcome;

constexpr std::string_view kSeparators = "\\/";

/// The longest path that Windows knows, a bound for the work on a path.
constexpr std::size_t kLongestPath = 32767;

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

/// What lies in a folder that may not be searched counts as there: who opens it is told why it cannot be
/// read.
bool Exists(const fs::path& path) {
  std::error_code error;
  return fs::exists(path, error) || error == std::errc::permission_denied;
}

bool IsFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

/// Adds the names in `path` to `names`; ".." takes one off and stays where there is none.
void Resolve(std::vector<std::string>& names, std::string_view path) {
  while (!path.empty()) {
    const auto length = std::min(path.find_first_of(kSeparators), path.size());
    const auto name = path.substr(0, length);
    path.remove_prefix(std::min(length + 1, path.size()));
    if (name.empty() || name == ".") continue;
    if (name != "..") {
      names.emplace_back(name);
    } else if (!names.empty()) {
      names.pop_back();
    }
  }
}

/// The entry of `folder` that is called `name` in another mix of capitals, the first in byte order if there
/// are several; empty if there is none.
fs::path EntryNoCase(const fs::path& folder, const std::string& name) {
  std::string best;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::string found = entry->path().filename().string();
    if ((best.empty() || found < best) && EqualNoCase(found, name)) best = std::move(found);
  }
  return best.empty() ? fs::path() : folder / best;
}

HostPath Walk(fs::path at, const std::vector<std::string>& names) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    fs::path next = at / names[i];
    if (!Exists(next)) next = EntryNoCase(at, names[i]);
    if (next.empty() || !Exists(next)) {
      const bool folderThere = i + 1 == names.size() && IsFolder(at);
      return {folderThere ? Outcome::FileMissing : Outcome::FolderMissing, {}};
    }
    at = std::move(next);
  }
  return {Outcome::Found, std::move(at)};
}

/// The current directory, by the names that lead from `root` to it if it lies below.
fs::path LeaveCurrentDirectory(const fs::path& root, std::vector<std::string>& names) {
  std::error_code error;
  const fs::path here = fs::current_path(error);
  const fs::path below = here.lexically_relative(root);
  const bool inside = !below.empty() && *below.begin() != "..";
  Resolve(names, (inside ? below : here).string());
  return inside ? root : here.root_path();
}

}  // namespace

DiscDrive::DiscDrive(std::filesystem::path root, char letter) : root_(std::move(root)), letter_(letter) {}

HostPath DiscDrive::Find(std::string_view path) const {
  if (path.empty()) return {Outcome::FileMissing, {}};
  if (path.size() > kLongestPath || path.find('\0') != path.npos) return {};
  const bool hasDrive = path.size() >= 2 && path[1] == ':';
  const bool rooted = IsSeparator(path[0]);
  if (hasDrive && !EqualNoCase(path.substr(0, 1), {&letter_, 1})) return {};
  if (rooted && path.size() >= 2 && IsSeparator(path[1])) return {};
  std::vector<std::string> names;
  const fs::path start = hasDrive || rooted ? root_ : LeaveCurrentDirectory(root_, names);
  Resolve(names, hasDrive ? path.substr(2) : path);
  fs::path exact = start;
  for (const std::string& name : names) exact /= name;
  if (Exists(exact)) return {Outcome::Found, std::move(exact)};
  return Walk(start, names);
}

}  // namespace orvanta
