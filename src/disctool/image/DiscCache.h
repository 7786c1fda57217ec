#pragma once

#include <filesystem>
#include <string>

#include "disctool/Progress.h"
#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// A disc as a folder.
struct OpenedDisc {
  std::filesystem::path folder;
  std::string problem;  ///< why there is none; empty if there is one
  Descriptor inUse;     ///< prevents an unpacked image from being removed
};

/// Unpacked copies of images, in a folder that only the user may enter. A copy is made beside its final place
/// and moved there when it is complete, so nothing incomplete is ever found there. It is used again as long
/// as the path, size, date and inode of the image stay the same; the copy of an older state is removed.
class DiscCache {
 public:
  /// Uses `$XDG_CACHE_HOME/orvanta` or `~/.cache/orvanta` (XDG Base Directories).
  DiscCache();
  explicit DiscCache(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// `disc` is a folder or an ISO 9660 image; a folder is used as it is. Waits if another process is
  /// unpacking.
  OpenedDisc Open(const std::filesystem::path& disc, const Progress& progress) const;

  /// Removes all copies that no shell has open. Returns what could not be removed; empty on success.
  std::string Clear() const;

 private:
  Descriptor Lock(std::string& problem) const;
  OpenedDisc Unpack(const std::filesystem::path& image, const std::string& name,
                    const Progress& progress) const;
  void RemoveOthers(const std::string& name) const;

  std::filesystem::path folder_;
};

}  // namespace orvanta
