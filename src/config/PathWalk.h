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
    FileMissing,   ///< all folders on the way are there, the last name is not
    FolderMissing  ///< a folder on the way or the drive is not there
  };
  Outcome outcome = Outcome::FolderMissing;
  /// The drive's root with the names behind it, spelled as they are there. Empty unless found.
  std::filesystem::path path{};
  /// Some name was found only by ignoring small and capital letters.
  bool otherCase = false;

  explicit operator bool() const { return outcome == Outcome::Found; }
};

/// What a path is looked up in: the files of the host, or a disc that is read in another way.
class PathLookup {
 public:
  virtual ~PathLookup() = default;
  virtual bool Exists(const std::filesystem::path& path) const = 0;
  virtual bool IsFolder(const std::filesystem::path& path) const = 0;
  /// The entry of `folder` that is called `name` in another mix of capitals, by the rule of `FoldedNames`;
  /// empty if there is none.
  virtual std::string EntryNoCase(const std::filesystem::path& folder, const std::string& name) const = 0;
};

/// The files of the host. Nothing is kept, so it sees every change at once.
class HostLookup : public PathLookup {
 public:
  /// What lies in a folder that may not be searched counts as there: who opens it is told why it cannot be
  /// read.
  bool Exists(const std::filesystem::path& path) const override;
  bool IsFolder(const std::filesystem::path& path) const override;
  std::string EntryNoCase(const std::filesystem::path& folder, const std::string& name) const override;
};

/// The names in a folder, to be found without regard to case. Of several that match, the first in byte order
/// is meant.
class FoldedNames {
 public:
  void Add(std::string_view name);
  /// Empty if there is none.
  std::string Find(std::string_view name) const;

 private:
  std::map<std::string, std::string, std::less<>> names_;
};

/// Adds the names in a Windows path without its drive to `names`. "." adds nothing; ".." takes one off, and
/// none where there is none.
void AddNames(std::vector<std::string>& names, std::string_view path);

/// Follows `names` from the folder `start`. A name that matches exactly is preferred to one in another mix of
/// capitals, and an entry that leads nowhere counts as missing.
FoundPath WalkPath(const PathLookup& files, const std::filesystem::path& start,
                   const std::vector<std::string>& names);

}  // namespace orvanta
