#pragma once

#include <filesystem>
#include <string_view>

namespace orvanta {

/// What a Windows path leads to on the host.
struct HostPath {
  enum class Outcome {
    Found,         ///< `path` exists; it may be a file or a folder
    FileMissing,   ///< all folders on the way are there, the last name is not
    FolderMissing  ///< a folder on the way or the drive is not there
  };
  Outcome outcome = Outcome::FolderMissing;
  /// Empty unless found.
  std::filesystem::path path;

  explicit operator bool() const { return outcome == Outcome::Found; }
};

/// The one drive of a disc: a folder of the host under a drive letter. Other drives do not exist.
///
/// Names are UTF-8 and match without regard to case; a name that matches exactly is preferred. Symbolic links
/// are followed, and a name that leads nowhere counts as missing.
class DiscDrive {
 public:
  explicit DiscDrive(std::filesystem::path root, char letter = 'D');

  /// `path` is UTF-8 with backslashes or slashes. "." and ".." are resolved before anything is looked up, and
  /// never climb above the drive's root. "D:x" and "\x" begin at the drive's root like "D:\x"; a path without
  /// drive and leading backslash begins at the current directory. Network paths lead nowhere.
  HostPath Find(std::string_view path) const;

 private:
  std::filesystem::path root_;
  char letter_;
};

}  // namespace orvanta
