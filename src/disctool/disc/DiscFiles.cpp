#include "disctool/disc/DiscFiles.h"

#include <system_error>
#include <utility>
#include <vector>

#include "config/Windows1250.h"
#include "disctool/disc/IniFile.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// Equal for names that `EqualNoCase` holds for equal.
std::string NameKey(const std::string& name) {
  if (const auto bytes = ToWindows1250(name)) return '1' + Folded(*bytes);
  std::string key = '0' + name;
  for (char& c : key)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return key;
}

/// The names in a path behind its drive letter, "." and ".." resolved.
std::vector<std::string> NamesOf(std::string_view path) {
  std::vector<std::string> names;
  path.remove_prefix(std::min<std::size_t>(2, path.size()));
  while (!path.empty()) {
    const auto length = std::min(path.find_first_of("\\/"), path.size());
    const std::string name(path.substr(0, length));
    path.remove_prefix(std::min(length + 1, path.size()));
    if (name.empty() || name == ".") continue;
    if (name != "..") {
      names.push_back(name);
    } else if (!names.empty()) {
      names.pop_back();
    }
  }
  return names;
}

bool Exists(const fs::path& path) {
  std::error_code error;
  return fs::exists(path, error);
}

template <class Value, class Try>
Value Once(std::unordered_map<std::string, Value>& known, const fs::path& file, Try attempt) {
  if (const auto before = known.find(file.native()); before != known.end()) return before->second;
  std::error_code error;
  Value value = fs::is_regular_file(file, error) ? attempt() : Value{};
  known.emplace(file.native(), value);
  return value;
}

}  // namespace

DiscFiles::DiscFiles(fs::path discFolder, DiscProbe& probe) : root_(std::move(discFolder)), probe_(probe) {}

const DiscFiles::Found& DiscFiles::Find(const std::string& path) {
  const auto before = found_.find(path);
  return before != found_.end() ? before->second : found_.emplace(path, Search(path)).first->second;
}

DiscFiles::Found DiscFiles::Search(const std::string& path) {
  using Outcome = HostPath::Outcome;
  const std::vector<std::string> names = NamesOf(path);
  fs::path at = root_;
  for (const std::string& name : names) at /= name;
  if (Exists(at)) return {{Outcome::Found, at}, false};
  at = root_;
  bool otherCase = false;
  for (std::size_t i = 0; i < names.size(); ++i) {
    fs::path next = at / names[i];
    if (!Exists(next)) {
      otherCase = true;
      const auto& folder = FolderOf(at);
      const auto entry = folder.find(NameKey(names[i]));
      if (entry == folder.end() || !Exists(next = at / entry->second)) {
        std::error_code error;
        const bool folderThere = i + 1 == names.size() && fs::is_directory(at, error);
        return {{folderThere ? Outcome::FileMissing : Outcome::FolderMissing, {}}, false};
      }
    }
    at = std::move(next);
  }
  return {{Outcome::Found, at}, otherCase};
}

const std::map<std::string, std::string>& DiscFiles::FolderOf(const fs::path& folder) {
  const auto [at, isNew] = folders_.try_emplace(folder.native());
  if (!isNew) return at->second;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::string name = entry->path().filename().string();
    std::string& best = at->second[NameKey(name)];
    if (best.empty() || name < best) best = std::move(name);
  }
  return at->second;
}

std::optional<Size> DiscFiles::PictureSize(const fs::path& file) {
  return Once(pictures_, file, [&] { return probe_.PictureSize(file); });
}

bool DiscFiles::IsFont(const fs::path& file) {
  return Once(fonts_, file, [&] { return probe_.IsFont(file); });
}

bool DiscFiles::CanPlay(const fs::path& file, bool film) {
  return Once(film ? films_ : sounds_, file, [&] { return probe_.CanPlay(file, film); });
}

}  // namespace orvanta
