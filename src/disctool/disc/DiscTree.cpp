#include "disctool/disc/DiscTree.h"

#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <system_error>

#include "config/DiscDrive.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

}  // namespace

FoundPath DiscTree::Find(std::string_view windowsPath) const {
  const bool rooted = windowsPath.starts_with('\\') || windowsPath.starts_with('/');
  return HasDrive(windowsPath) || rooted ? DiscDrive(fs::path()).Find(windowsPath, *this) : FoundPath();
}

bool DiscTree::Exists(const fs::path& path) const { return EntryAt(path.native()).kind != Kind::Missing; }

bool DiscTree::IsFolder(const fs::path& path) const { return EntryAt(path.native()).kind == Kind::Folder; }

std::string DiscTree::EntryNoCase(const fs::path& folder, const std::string& name) const {
  const auto [at, isNew] = folders_.try_emplace(folder.native());
  if (isNew)
    for (const std::string& entry : List(folder.native())) at->second.Add(entry);
  return at->second.Find(name);
}

DiscTree::Entry FolderTree::EntryAt(const std::string& path) const {
  struct stat status {};
  if (stat(OnHost(path).c_str(), &status) != 0) return {};
  if (S_ISDIR(status.st_mode)) return {Kind::Folder};
  if (!S_ISREG(status.st_mode)) return {Kind::Other};
  return {Kind::File, static_cast<std::uintmax_t>(status.st_size), status.st_mtime,
          (status.st_mode & (S_IXUSR | S_IXGRP | S_IXOTH)) != 0};
}

bool FolderTree::IsLink(const std::string& path) const {
  std::error_code error;
  return fs::is_symlink(OnHost(path), error);
}

bool FolderTree::LeadsOff(const std::string& path) const {
  std::error_code error;
  const fs::path root = fs::weakly_canonical(Name(), error),
                 target = fs::weakly_canonical(Place(path), error);
  return *target.lexically_relative(root).begin() == "..";
}

std::vector<std::string> FolderTree::List(const std::string& folder) const {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(OnHost(folder), error), end; !error && entry != end;
       entry.increment(error))
    names.push_back(entry->path().filename().string());
  return names;
}

std::optional<std::string> FolderTree::Read(const std::string& path, std::uintmax_t from,
                                            std::uintmax_t most) const {
  // Reading a FIFO or a device might wait for ever.
  if (EntryAt(path).kind != Kind::File) return std::nullopt;
  std::ifstream in(OnHost(path), std::ios::binary);
  if (!in || !in.seekg(static_cast<std::streamoff>(from))) return std::nullopt;
  std::string bytes;
  // Read to the end instead of using the size, since special files of the system report none.
  constexpr std::uintmax_t kPart = 256 * 1024;
  while (in && bytes.size() < most) {
    const std::size_t before = bytes.size();
    bytes.resize(before + static_cast<std::size_t>(std::min(kPart, most - before)));
    in.read(&bytes[before], static_cast<std::streamsize>(bytes.size() - before));
    bytes.resize(before + static_cast<std::size_t>(in.gcount()));
  }
  if (in.bad()) return std::nullopt;
  return bytes;
}

bool FolderTree::Exists(const fs::path& path) const { return HostLookup().Exists(OnHost(path.native())); }

}  // namespace orvanta
