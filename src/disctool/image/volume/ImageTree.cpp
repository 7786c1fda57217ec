#include "disctool/image/volume/ImageTree.h"

#include <unistd.h>

#include <algorithm>
#include <deque>
#include <fstream>
#include <system_error>

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// As many links as Linux follows in one path (path_resolution(7)).
constexpr int kMostLinks = 40;

/// Inserts the names of a path before those that remain.
void PutFirst(std::deque<std::string>& names, std::string_view path) {
  std::deque<std::string> first;
  while (!path.empty()) {
    const auto length = std::min(path.find('/'), path.size());
    if (length > 0) first.emplace_back(path.substr(0, length));
    path.remove_prefix(std::min(length + 1, path.size()));
  }
  names.insert(names.begin(), first.begin(), first.end());
}

}  // namespace

ImageTree::~ImageTree() {
  std::error_code ignored;
  if (!copies_.empty()) fs::remove_all(copies_, ignored);
}

const ImageTree::Folder& ImageTree::EntriesOf(const VolumeEntry& folder) const {
  const auto [at, isNew] = folders_.try_emplace(folder.extents[0].block);
  if (isNew)
    for (VolumeEntry& entry : volume_->List(folder)) at->second.emplace(entry.name, std::move(entry));
  return at->second;
}

std::optional<VolumeEntry> ImageTree::Locate(std::string_view path) const {
  std::vector<VolumeEntry> way{volume_->Root()};
  std::deque<std::string> names;
  PutFirst(names, path);
  for (int links = 0; !names.empty();) {
    const std::string name = std::move(names.front());
    names.pop_front();
    if (way.back().kind != EntryKind::Folder) return std::nullopt;
    if (name == ".") continue;
    if (name == "..") {
      // There is nothing above the root of the disc.
      if (way.size() == 1) return std::nullopt;
      way.pop_back();
      continue;
    }
    const Folder& entries = EntriesOf(way.back());
    const auto found = entries.find(name);
    if (found == entries.end()) return std::nullopt;
    if (found->second.kind != EntryKind::Link) {
      way.push_back(found->second);
    } else if (++links > kMostLinks || found->second.target.starts_with('/')) {
      return std::nullopt;
    } else {
      PutFirst(names, found->second.target);
    }
  }
  return way.back();
}

DiscTree::Entry ImageTree::EntryAt(const std::string& path) const {
  const auto entry = Locate(path);
  if (!entry) return {};
  switch (entry->kind) {
    case EntryKind::File:
      return {Kind::File, entry->Size(), entry->modified, (entry->permissions & 0111) != 0};
    case EntryKind::Folder: return {Kind::Folder};
    default: return {Kind::Other};
  }
}

bool ImageTree::IsLink(const std::string& path) const {
  const std::string_view whole = path;
  const auto slash = whole.rfind('/');
  const auto folder = Locate(whole.substr(0, slash == whole.npos ? 0 : slash));
  if (!folder || folder->kind != EntryKind::Folder) return false;
  const Folder& entries = EntriesOf(*folder);
  const auto entry = entries.find(whole.substr(slash + 1));
  return entry != entries.end() && entry->second.kind == EntryKind::Link;
}

std::vector<std::string> ImageTree::List(const std::string& folder) const {
  std::vector<std::string> names;
  const auto entry = Locate(folder);
  if (!entry || entry->kind != EntryKind::Folder) return names;
  for (const auto& [name, held] : EntriesOf(*entry)) names.push_back(name);
  return names;
}

std::optional<std::string> ImageTree::Read(const std::string& path, std::uintmax_t from,
                                           std::uintmax_t most) const {
  const auto entry = Locate(path);
  return entry ? volume_->Read(*entry, from, most) : std::nullopt;
}

bool ImageTree::Copy(const VolumeEntry& file, const fs::path& to) const {
  constexpr std::uint64_t kPart = 1024 * 1024;
  std::ofstream out(to, std::ios::binary);
  for (std::uint64_t at = 0; at < file.Size() && out; at += kPart) {
    const auto part = volume_->Read(file, at, kPart);
    if (!part) return false;
    out.write(part->data(), static_cast<std::streamsize>(part->size()));
  }
  out.close();
  return static_cast<bool>(out);
}

fs::path ImageTree::OnHost(const std::string& path) const {
  if (const auto before = copied_.find(path); before != copied_.end()) return before->second;
  const auto entry = Locate(path);
  if (!entry || entry->kind != EntryKind::File) return {};
  // A thousand names for the same bytes would fill the host's disk.
  if (copiedBytes_ + entry->Size() > 2 * volume_->Capacity()) return {};
  if (copies_.empty()) {
    std::error_code error;
    std::string pattern = (fs::temp_directory_path(error) / "orvanta-XXXXXX").string();
    if (!error && mkdtemp(pattern.data())) copies_ = pattern;
  }
  if (copies_.empty()) return {};
  // Names in an image are never used as names on the host.
  fs::path copy = copies_ / std::to_string(copied_.size());
  copy += fs::path(path).extension();
  if (!Copy(*entry, copy)) return {};
  copiedBytes_ += entry->Size();
  return copied_.emplace(path, std::move(copy)).first->second;
}

}  // namespace orvanta
