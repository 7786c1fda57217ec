#pragma once

#include <memory>
#include <string>
#include <vector>

#include "disctool/image/PackedDisc.h"
#include "disctool/image/volume/ImageTree.h"

namespace orvanta {

class CopyWriter;

/// An image whose files are unpacked for programs. Links are kept if they lead to something in the image;
/// other links and devices are left out. An image with a name that leads out of it, or with folders that
/// contain each other, is rejected.
class PackedVolume : public PackedDisc {
 public:
  /// `state` changes when the files of the image do.
  PackedVolume(std::string state, std::unique_ptr<const Volume> volume);

  std::string State() const override { return state_; }
  PackedContents Contents() const override { return contents_; }
  std::string Unpack(const std::filesystem::path& folder, const PackedContents& contents,
                     const Progress& progress) const override;
  std::string Restore(const std::filesystem::path& folder) const override;

 private:
  struct Item {
    std::string path;
    VolumeEntry entry;
  };

  void Walk();
  void Add(const std::string& path, VolumeEntry entry, std::vector<Item>& open);
  std::string Write(const std::filesystem::path& folder, const Item& item, CopyWriter& out) const;
  std::string Link(const std::filesystem::path& folder, const Item& item) const;

  const std::string state_;
  const Volume* volume_;
  ImageTree tree_;
  std::vector<Item> items_;  // each folder before what it contains, links last
  PackedContents contents_;
};

}  // namespace orvanta
