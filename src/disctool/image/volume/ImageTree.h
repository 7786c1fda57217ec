#pragma once

#include <map>
#include <memory>
#include <string>
#include <unordered_map>

#include "disctool/disc/DiscTree.h"
#include "disctool/image/volume/Volume.h"

namespace orvanta {

/// A disc that is an image, which is read in place. Nothing is written except the files that `OnHost` is
/// asked for, in a folder that is removed with this object. Links lead to entries of the image or nowhere.
class ImageTree : public DiscTree {
 public:
  ImageTree(std::filesystem::path name, std::unique_ptr<const Volume> volume)
      : DiscTree(std::move(name)), volume_(std::move(volume)) {}
  ~ImageTree() override;

  Entry EntryAt(const std::string& path) const override;
  bool IsLink(const std::string& path) const override;
  bool LeadsOff(const std::string& path) const override { return IsLink(path) && !Locate(path); }
  std::string Label() const override { return volume_->Label(); }
  std::optional<std::uint32_t> Serial() const override { return volume_->Serial(); }
  std::vector<std::string> List(const std::string& folder) const override;
  std::optional<std::string> Read(const std::string& path, std::uintmax_t from = 0,
                                  std::uintmax_t most = kAll) const override;
  std::filesystem::path OnHost(const std::string& path) const override;

 private:
  using Folder = std::map<std::string, VolumeEntry, std::less<>>;

  const Folder& EntriesOf(const VolumeEntry& folder) const;
  std::optional<VolumeEntry> Locate(std::string_view path) const;
  bool Copy(const VolumeEntry& file, const std::filesystem::path& to) const;

  const std::unique_ptr<const Volume> volume_;
  mutable std::unordered_map<std::uint32_t, Folder> folders_;  // by first block
  mutable std::filesystem::path copies_;
  mutable std::map<std::string, std::filesystem::path> copied_;
  mutable std::uint64_t copiedBytes_ = 0;
};

}  // namespace orvanta
