#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// What a Windows path leads to on the disc's drive.
struct FoundPath {
  enum class Outcome {
    Found,         ///< `path` exists; it may be a file or a folder
    FileMissing,   ///< the folders exist, but not the last name
    FolderMissing  ///< a folder on the way, or the drive, does not exist
  };
  Outcome outcome = Outcome::FolderMissing;
  /// The root of the drive followed by the names as they are spelled on the disc. Empty unless found.
  std::filesystem::path path{};
  /// At least one name matched only because case is ignored.
  bool otherCase = false;

  explicit operator bool() const { return outcome == Outcome::Found; }
};

/// Where a path is looked up: the files of the host, or a disc that is read in some other way.
class PathLookup {
 public:
  virtual ~PathLookup() = default;
  virtual bool Exists(const std::filesystem::path& path) const = 0;
  virtual bool IsFolder(const std::filesystem::path& path) const = 0;
  /// The entry of `folder` that matches `name` ignoring case, by the rule of `FoldedNames`; empty if there is
  /// none.
  virtual std::string EntryNoCase(const std::filesystem::path& folder, const std::string& name) const = 0;
};

/// The files of the host. Nothing is cached, so every change is seen at once.
class HostLookup : public PathLookup {
 public:
  /// Files in a folder without search permission count as existing: whoever opens one learns that access is
  /// denied.
  bool Exists(const std::filesystem::path& path) const override;
  bool IsFolder(const std::filesystem::path& path) const override;
  std::string EntryNoCase(const std::filesystem::path& folder, const std::string& name) const override;
};

/// The names in a folder, to be found ignoring case. If several match, the first in byte order is used.
class FoldedNames {
 public:
  void Add(std::string_view name);
  /// Empty if there is none.
  std::string Find(std::string_view name) const;

 private:
  std::map<std::string, std::string, std::less<>> names_;
};

/// Appends the names in a Windows path, which comes without its drive, to `names`. "." adds nothing; ".."
/// removes the last name, if there is one.
void AddNames(std::vector<std::string>& names, std::string_view path);

/// Follows `names` from the folder `start`. An exact match is preferred to one that ignores case, and a
/// dangling link counts as missing.
FoundPath WalkPath(const PathLookup& files, const std::filesystem::path& start,
                   const std::vector<std::string>& names);

}  // namespace orvanta
