#include "disctool/image/PackedVolume.h"

#include <algorithm>
#include <set>
#include <system_error>

#include "disctool/Translation.h"
#include "disctool/image/CopyWriter.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

}  // namespace

PackedVolume::PackedVolume(std::string state, std::unique_ptr<const Volume> volume)
    : state_(std::move(state)), volume_(volume.get()), tree_({}, std::move(volume)) {
  Walk();
  std::ranges::stable_partition(items_, [](const Item& item) { return item.entry.kind != EntryKind::Link; });
}

void PackedVolume::Walk() {
  std::vector<Item> open{{{}, volume_->Root()}};
  std::set<std::uint32_t> seen;
  while (!open.empty() && contents_.problem.empty()) {
    const Item folder = std::move(open.back());
    open.pop_back();
    if (!seen.insert(folder.entry.extents[0].block).second) {
      contents_.problem = Translated("the image has folders that contain each other: %1", folder.path);
      return;
    }
    for (VolumeEntry& entry : volume_->List(folder.entry, &contents_.problem)) {
      const std::string path = folder.path.empty() ? entry.name : folder.path + "/" + entry.name;
      Add(path, std::move(entry), open);
    }
  }
}

void PackedVolume::Add(const std::string& path, VolumeEntry entry, std::vector<Item>& open) {
  if (entry.kind == EntryKind::Other) return;
  if (entry.kind == EntryKind::Link && tree_.EntryAt(path).kind == DiscTree::Kind::Missing) return;
  if (entry.kind == EntryKind::File) contents_.bytes += entry.Size();
  if (++contents_.files > kMostPackedFiles) contents_.problem = Translated("the image has too many files");
  items_.push_back({path, std::move(entry)});
  if (items_.back().entry.kind == EntryKind::Folder) open.push_back(items_.back());
}

std::string PackedVolume::Write(const fs::path& folder, const Item& item, CopyWriter& out) const {
  const VolumeEntry& file = item.entry;
  std::string problem = out.Begin(folder / item.path, (file.permissions & 0111) != 0);
  constexpr std::uint64_t kPart = 1024 * 1024;
  for (std::uint64_t at = 0; at < file.Size() && problem.empty(); at += kPart) {
    const auto part = volume_->Read(file, at, kPart);
    problem = part ? out.Write(*part) : Translated("the image cannot be read: %1", item.path);
  }
  return problem.empty() ? out.End(file.modified) : problem;
}

std::string PackedVolume::Link(const fs::path& folder, const Item& item) const {
  std::error_code error;
  if (fs::read_symlink(folder / item.path, error) == item.entry.target) return {};
  fs::remove_all(folder / item.path, error);
  fs::create_symlink(item.entry.target, folder / item.path, error);
  return error ? item.path + ": " + error.message() : std::string();
}

std::string PackedVolume::Unpack(const fs::path& folder, const PackedContents& contents,
                                 const Progress& progress) const {
  CopyWriter out(contents.bytes, progress);
  std::string problem;
  for (const Item& item : items_) {
    switch (item.entry.kind) {
      case EntryKind::Folder: problem = EnsureFolder(folder / item.path); break;
      case EntryKind::Link: problem = Link(folder, item); break;
      default: problem = Write(folder, item, out);
    }
    if (!problem.empty()) break;
  }
  return problem;
}

std::string PackedVolume::Restore(const fs::path& folder) const {
  const Progress unseen = [](std::uintmax_t, std::uintmax_t) {};
  CopyWriter out(contents_.bytes, unseen);
  for (const Item& item : items_) {
    const fs::path path = folder / item.path;
    std::string problem;
    if (item.entry.kind == EntryKind::Folder) problem = EnsureFolder(path);
    if (item.entry.kind == EntryKind::Link) problem = Link(folder, item);
    if (item.entry.kind == EntryKind::File && !IsAsUnpacked(path, item.entry.Size(), item.entry.modified)) {
      std::error_code error;
      fs::remove_all(path, error);
      problem = Write(folder, item, out);
    }
    if (!problem.empty()) return problem;
  }
  return {};
}

}  // namespace orvanta
