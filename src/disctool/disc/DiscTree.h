#pragma once

#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "config/PathWalk.h"

namespace orvanta {

/// A disc to read: a folder, or an image that stays packed. Everything that the tool reports about a disc is
/// read through this class, so the reports are the same for both.
///
/// An entry is named by its path from the root of the disc: in UTF-8, spelled as on the disc, with slashes;
/// the path of the root is empty. `Find` finds it by a Windows path, with the shell's own rule. Folders are
/// listed only once, so later changes may go unnoticed.
class DiscTree : public PathLookup {
 public:
  enum class Kind {
    Missing,
    File,
    Folder,
    Other  ///< a FIFO or a device, which must not be opened
  };
  struct Entry {
    Kind kind = Kind::Missing;
    std::uintmax_t size = 0;    ///< the size of a file, in bytes
    std::int64_t modified = 0;  ///< of a file, in seconds since 1970 in UTC; 0 if the disc does not say
    bool executable = false;    ///< a file that somebody may run
  };
  static constexpr std::uintmax_t kAll = std::numeric_limits<std::uintmax_t>::max();

  /// `name` is the name of the disc as the user wrote it.
  explicit DiscTree(std::filesystem::path name) : name_(std::move(name)) {}
  DiscTree(const DiscTree&) = delete;
  DiscTree& operator=(const DiscTree&) = delete;

  /// What the path leads to. Links are followed.
  virtual Entry EntryAt(const std::string& path) const = 0;
  /// Whether the entry is a link to another place.
  virtual bool IsLink(const std::string&) const { return false; }
  /// Whether a link leads out of the disc, so that a copy of it would lead nowhere.
  virtual bool LeadsOff(const std::string&) const { return false; }
  /// The label of an image's volume; empty without one.
  virtual std::string Label() const { return {}; }
  /// The serial number that Windows shows for an image; nothing without one.
  virtual std::optional<std::uint32_t> Serial() const { return std::nullopt; }
  /// The names in a folder, in any order; none if it cannot be read.
  virtual std::vector<std::string> List(const std::string& folder) const = 0;
  /// At most `most` bytes, starting at `from`; fewer at the end of the file. Nothing if it is not a file or
  /// cannot be read.
  virtual std::optional<std::string> Read(const std::string& path, std::uintmax_t from = 0,
                                          std::uintmax_t most = kAll) const = 0;
  /// A file of the host with the same content and the same extension, for libraries that can only read such
  /// files. It may be unpacked for this, and exists as long as this object. Empty if that fails.
  virtual std::filesystem::path OnHost(const std::string& path) const = 0;

  /// What a Windows path leads to that begins with the drive D or with a backslash. The `path` of the result
  /// names an entry of this disc. Other paths are not found.
  FoundPath Find(std::string_view windowsPath) const;
  /// An entry as it is shown to the user: the name of the disc, followed by the path on it.
  std::filesystem::path Place(const std::string& path) const { return path.empty() ? name_ : name_ / path; }
  const std::filesystem::path& Name() const { return name_; }

  bool Exists(const std::filesystem::path& path) const override;
  bool IsFolder(const std::filesystem::path& path) const override;
  std::string EntryNoCase(const std::filesystem::path& folder, const std::string& name) const override;

 private:
  const std::filesystem::path name_;
  mutable std::unordered_map<std::string, FoldedNames> folders_;
};

/// A disc that is a folder of the host. Nothing is copied.
class FolderTree : public DiscTree {
 public:
  explicit FolderTree(std::filesystem::path folder) : DiscTree(folder), folder_(std::move(folder)) {}
  /// With another name for its user than that of its folder.
  FolderTree(std::filesystem::path name, std::filesystem::path folder)
      : DiscTree(std::move(name)), folder_(std::move(folder)) {}

  Entry EntryAt(const std::string& path) const override;
  bool IsLink(const std::string& path) const override;
  bool LeadsOff(const std::string& path) const override;
  std::vector<std::string> List(const std::string& folder) const override;
  std::optional<std::string> Read(const std::string& path, std::uintmax_t from = 0,
                                  std::uintmax_t most = kAll) const override;
  std::filesystem::path OnHost(const std::string& path) const override {
    return path.empty() ? folder_ : folder_ / path;
  }
  /// By the rule of the shell's own drive, also for folders without search permission.
  bool Exists(const std::filesystem::path& path) const override;

 private:
  const std::filesystem::path folder_;
};

}  // namespace orvanta
