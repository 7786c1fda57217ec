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

/// A disc that is read, be it a folder or an image in place. Whoever says something of a disc reads it
/// through this, and so says the same of every kind.
///
/// An entry is named by its path from the disc's root: UTF-8, spelled as it is there and parted by slashes;
/// the root's is empty. `Find` leads there from a Windows path, by the shell's own rule. Folders are listed
/// once: what changes later may go unseen.
class DiscTree : public PathLookup {
 public:
  enum class Kind {
    Missing,
    File,
    Folder,
    Other  ///< neither: a FIFO or a device, which nobody may open
  };
  struct Entry {
    Kind kind = Kind::Missing;
    std::uintmax_t size = 0;    ///< of a file, in bytes
    std::int64_t modified = 0;  ///< of a file, in seconds since 1970 in UTC; 0 if the disc does not say
    bool executable = false;    ///< a file that somebody may run
  };
  static constexpr std::uintmax_t kAll = std::numeric_limits<std::uintmax_t>::max();

  /// `name` is the disc's as its user gave it.
  explicit DiscTree(std::filesystem::path name) : name_(std::move(name)) {}
  DiscTree(const DiscTree&) = delete;
  DiscTree& operator=(const DiscTree&) = delete;

  /// Links are followed.
  virtual Entry EntryAt(const std::string& path) const = 0;
  /// Whether the entry is a link to another place.
  virtual bool IsLink(const std::string&) const { return false; }
  /// Whether a link leads out of the disc, so that a copy of it would lead nowhere.
  virtual bool LeadsOff(const std::string&) const { return false; }
  /// The label of an image's volume; empty without one.
  virtual std::string Label() const { return {}; }
  /// The names in a folder, in any order; none if it cannot be read.
  virtual std::vector<std::string> List(const std::string& folder) const = 0;
  /// Up to `most` bytes from the place `from` on, fewer at the file's end. Nothing if that is not a file or
  /// cannot be read.
  virtual std::optional<std::string> Read(const std::string& path, std::uintmax_t from = 0,
                                          std::uintmax_t most = kAll) const = 0;
  /// A file on the host with the same content and the same ending of its name, for those who can read no
  /// other. It may be unpacked for this, and is there for as long as the disc. Empty if it cannot be had.
  virtual std::filesystem::path OnHost(const std::string& path) const = 0;

  /// Where a Windows path leads that begins with the drive D or with a backslash; `path` of what is found
  /// names an entry of this disc. Other paths lead nowhere.
  FoundPath Find(std::string_view windowsPath) const;
  /// An entry as its user is told of it: the disc's name, then the path in it.
  std::filesystem::path Place(const std::string& path) const { return path.empty() ? name_ : name_ / path; }
  const std::filesystem::path& Name() const { return name_; }

  bool Exists(const std::filesystem::path& path) const override;
  bool IsFolder(const std::filesystem::path& path) const override;
  std::string EntryNoCase(const std::filesystem::path& folder, const std::string& name) const override;

 private:
  const std::filesystem::path name_;
  mutable std::unordered_map<std::string, FoldedNames> folders_;
};

/// A disc that is a folder of the host. Nothing of it is copied.
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
  /// By the rule of the shell's own drive, closed folders too.
  bool Exists(const std::filesystem::path& path) const override;

 private:
  const std::filesystem::path folder_;
};

}  // namespace orvanta
