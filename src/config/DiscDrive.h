#pragma once

#include <filesystem>
#include <string_view>

#include "config/PathWalk.h"

namespace orvanta {

/// The one drive of a disc: a folder under a drive letter. Other drives do not exist.
///
/// Names are UTF-8 and match without regard to case; a name that matches exactly is preferred. Symbolic links
/// are followed, and a name that leads nowhere counts as missing.
class DiscDrive {
 public:
  explicit DiscDrive(std::filesystem::path root, char letter = 'D');

  /// `path` is UTF-8 with backslashes or slashes. "." and ".." are resolved before anything is looked up, and
  /// never climb above the drive's root. "D:x" and "\x" begin at the drive's root like "D:\x"; a path without
  /// drive and leading backslash begins at the current directory. Network paths lead nowhere. The path that
  /// is found lies on the host, unless the drive's root is the root of other `files`.
  FoundPath Find(std::string_view path, const PathLookup& files = HostLookup()) const;

 private:
  std::filesystem::path root_;
  char letter_;
};

}  // namespace orvanta
