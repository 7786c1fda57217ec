#pragma once

#include <filesystem>
#include <string>

#include "disctool/Progress.h"
#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// A disc as a folder.
struct OpenedDisc {
  std::filesystem::path folder;
  std::string problem;  ///< why there is none, empty if there is one
  Descriptor inUse;     ///< keeps an unpacked image from being removed
};

/// Copies of images, unpacked into a folder that only the user may enter. A copy is made beside its place and
/// moved there when it is whole, so that what is there is never half of something. It is used again for as
/// long as the image's place, size, date and inode are the same; one of an older state of the image is
/// removed.
class DiscCache {
 public:
  /// In `$XDG_CACHE_HOME/orvanta`, or `~/.cache/orvanta` (XDG Base Directories).
  DiscCache();
  explicit DiscCache(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// `disc` is a folder or an ISO 9660 image; a folder is taken as it is. Waits for another process that is
  /// unpacking.
  OpenedDisc Open(const std::filesystem::path& disc, const Progress& progress) const;

  /// Removes every copy that no shell has open. Gives what could not be removed, empty if all is gone.
  std::string Clear() const;

  const std::filesystem::path& Folder() const { return folder_; }

 private:
  Descriptor Lock(std::string& problem) const;
  OpenedDisc Unpack(const std::filesystem::path& image, const std::string& name,
                    const Progress& progress) const;
  void RemoveOthers(const std::string& name) const;

  std::filesystem::path folder_;
};

}  // namespace orvanta
