#include "config/PathWalk.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "config/Windows1250.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;
using Outcome = FoundPath::Outcome;

constexpr std::string_view kSeparators = "\\/";

}  // namespace

bool HostLookup::Exists(const fs::path& path) const {
  std::error_code error;
  return fs::exists(path, error) || error == std::errc::permission_denied;
}

bool HostLookup::IsFolder(const fs::path& path) const {
  std::error_code error;
  return fs::is_directory(path, error);
}

std::string HostLookup::EntryNoCase(const fs::path& folder, const std::string& name) const {
  const std::string wanted = FoldedName(name);
  FoldedNames matching;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    // An index of the whole folder would cost more than it saves, since only one name is looked up.
    const std::string found = entry->path().filename().string();
    if (FoldedName(found) == wanted) matching.Add(found);
  }
  return matching.Find(name);
}

void FoldedNames::Add(std::string_view name) {
  const auto [at, isNew] = names_.try_emplace(FoldedName(name), name);
  if (!isNew && name < at->second) at->second = name;
}

std::string FoldedNames::Find(std::string_view name) const {
  const auto found = names_.find(FoldedName(name));
  return found == names_.end() ? std::string() : found->second;
}

void AddNames(std::vector<std::string>& names, std::string_view path) {
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

FoundPath WalkPath(const PathLookup& files, const fs::path& start, const std::vector<std::string>& names) {
  fs::path at = start;
  for (const std::string& name : names) at /= name;
  // Most paths are spelled as their files are.
  if (files.Exists(at)) return {Outcome::Found, std::move(at)};
  at = start;
  bool otherCase = false;
  for (std::size_t i = 0; i < names.size(); ++i) {
    fs::path next = at / names[i];
    if (!files.Exists(next)) {
      const std::string entry = files.EntryNoCase(at, names[i]);
      if (entry.empty() || !files.Exists(next = at / entry))
        return {i + 1 == names.size() && files.IsFolder(at) ? Outcome::FileMissing : Outcome::FolderMissing};
      otherCase = true;
    }
    at = std::move(next);
  }
  return {Outcome::Found, std::move(at), otherCase};
}

}  // namespace orvanta
