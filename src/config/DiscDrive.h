#pragma once

#include <filesystem>
#include <string_view>

#include "config/PathWalk.h"

namespace orvanta {

/// Whether the path begins with a drive: "D:\\x", and also "D:".
inline bool HasDrive(std::string_view path) { return path.size() >= 2 && path[1] == ':'; }

/// The only drive of a disc: a folder with a drive letter. No other drive exists.
///
/// Names are UTF-8 and match whatever their case; an exact match is preferred. Symbolic links are followed,
/// and a dangling one counts as missing.
class DiscDrive {
 public:
  explicit DiscDrive(std::filesystem::path root, char letter = 'D');

  /// Looks up `path`, which is UTF-8 with backslashes or slashes. "." and ".." are resolved first and never
  /// climb above the root of the drive. "D:x" and "\x" start at the root, like "D:\x". A path with neither a
  /// drive nor a leading backslash starts at the current directory. Network paths are not found. The path in
  /// the result is one of the host, unless the root of the drive is the root of other `files`.
  FoundPath Find(std::string_view path, const PathLookup& files = HostLookup()) const;

 private:
  std::filesystem::path root_;
  char letter_;
};

}  // namespace orvanta
