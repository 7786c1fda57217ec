#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "disctool/disc/DiscTree.h"
#include "disctool/disc/IniFile.h"

namespace orvanta {

/// A line in a file of the disc; the file is named as by `DiscTree::Place`. Line 0 means the whole file.
struct DiscPlace {
  std::filesystem::path file;
  int line = 0;
};

/// A value as the shell finds it, and the line where it is.
struct Setting {
  std::string value;  ///< in UTF-8; empty if missing
  DiscPlace place;

  explicit operator bool() const { return !value.empty(); }
};

/// Both configuration files of a disc, read once. It finds the same as `INI_Read::IniRead`.
class Catalogue {
 public:
  /// The root of the drive: every disc is treated as drive D.
  static constexpr std::string_view kDiscRoot = "D:\\";
  /// A larger file cannot be a configuration file, and is not read.
  static constexpr std::uintmax_t kLargestFile = 64 * 1024 * 1024;

  struct File {
    std::filesystem::path path;  ///< as found, or where it would be
    bool found = false;
    bool tooLarge = false;
    bool unreadable = false;
    IniFile ini;
  };

  explicit Catalogue(const DiscTree& disc);

  /// `section` and `key` are UTF-8.
  Setting Find(std::string_view section, std::string_view key) const;
  /// Where a section begins, in the first file that has it; otherwise the beginning of the last file that
  /// exists.
  DiscPlace PlaceOf(std::string_view section) const;
  bool HasSection(std::string_view section) const;

  /// Menu.ini and then Param.ini, in the order in which they are searched.
  const std::array<File, 2>& Files() const { return files_; }
  bool Empty() const { return !files_[0].found && !files_[1].found; }

 private:
  std::array<File, 2> files_;
};

/// Says what is missing where there is no disc: "there is no disc here: ..."
std::string NoDisc();
/// The same with the place in front: "PLACE: there is no disc here: ..."
std::string NoDiscIn(const std::filesystem::path& disc);

}  // namespace orvanta
