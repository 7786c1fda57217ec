#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "disctool/Progress.h"
#include "platform/desktop/Descriptor.h"

namespace orvanta {

class PackedDisc;

/// A disc as a folder.
struct OpenedDisc {
  std::filesystem::path folder;
  std::string problem;  ///< why there is none; empty if there is one
  Descriptor inUse;     ///< prevents an unpacked image from being removed
};

/// Unpacked copies of images and archives, in a folder that only the user may enter. A copy is made beside
/// its final place and moved there when it is complete, so nothing incomplete is ever found there. It is used
/// again as long as the path, size, date and inode of the image's files stay the same; the copy of an older
/// state is removed. What programs changed in a copy or deleted from it is put back when it is opened again,
/// unless another shell has it open; what they added stays.
///
/// If a new copy makes all of them larger than the limit, those that were used longest ago are removed first,
/// but never one that a shell has open. A disc that is larger than the limit is unpacked all the same.
class DiscCache {
 public:
  static constexpr std::uintmax_t kDefaultLimit = 4'000'000'000;

  /// Uses `$XDG_CACHE_HOME/orvanta` or `~/.cache/orvanta` (XDG Base Directories).
  explicit DiscCache(std::uintmax_t limit = kDefaultLimit);
  /// `limit` is in bytes.
  explicit DiscCache(std::filesystem::path folder, std::uintmax_t limit = kDefaultLimit)
      : folder_(std::move(folder)), limit_(limit) {}

  /// `disc` is a folder, which is used as it is, an image, or an archive with one disc in it. Waits if
  /// another process is unpacking.
  OpenedDisc Open(const std::filesystem::path& disc, const Progress& progress) const;

  /// The same, but an image in an archive stays one: `folder` then is its path.
  OpenedDisc OpenArchive(const std::filesystem::path& archive, const Progress& progress) const;

  /// Removes all copies that no shell has open. Returns what could not be removed; empty on success.
  std::string Clear() const;

 private:
  Descriptor Lock(std::string& problem) const;
  OpenedDisc OpenCopy(const std::filesystem::path& disc, const PackedDisc& packed,
                      const Progress& progress) const;
  OpenedDisc Unpack(const std::filesystem::path& disc, const PackedDisc& packed, const std::string& name,
                    const Progress& progress) const;
  void RemoveOthers(const std::string& name) const;
  void MakeRoom(const std::string& name, std::uintmax_t wanted) const;

  std::filesystem::path folder_;
  std::uintmax_t limit_;
};

}  // namespace orvanta
