#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvanta {

/// Where a part of a file is.
struct Extent {
  std::uint32_t block = 0;  ///< the address of its first sector
  std::uint32_t bytes = 0;
};

enum class EntryKind {
  File,
  Folder,
  Link,
  Other  ///< something else, such as a device
};

/// A file, a folder or a link of a volume.
struct VolumeEntry {
  std::string name;  ///< UTF-8
  EntryKind kind = EntryKind::File;
  std::vector<Extent> extents;
  /// Whether its bytes cannot be read as they are: compressed, interleaved, or more than the disc has.
  bool unreadable = false;
  /// Everybody may read and execute it, as if the disc says nothing about permissions.
  std::uint32_t permissions = 0555;
  std::int64_t modified = 0;  ///< seconds since 1970 in UTC; 0 if unknown
  std::string target;         ///< the target of a link, as written there

  std::uint64_t Size() const {
    std::uint64_t size = 0;
    for (const Extent& extent : extents) size += extent.bytes;
    return size;
  }
};

}  // namespace orvanta
