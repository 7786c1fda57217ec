#pragma once

#include <string>
#include <string_view>

#include "config/DiscDrive.h"

namespace orvanta {

/// The files in the folder Data that hold the settings, in the order in which they are searched.
inline constexpr std::string_view kMenuFile = "Menu.ini", kSecondFile = "Param.ini";

/// Looks up the settings of a disc; the only way to them. Texts are UTF-8 here, while the files are
/// Windows-1250.
class INI_Read {
 public:
  /// `discRoot` is the Windows path of the disc's folder, with a trailing backslash.
  INI_Read(std::string discRoot, DiscDrive drive);

  /// The value of `key` in `section`: looked up in `file` in the folder Data and, if that gives nothing, in
  /// `kSecondFile`. Both files are read anew at each call. A leading "%:" becomes the drive of the disc.
  /// Returns an empty text if anything is missing; never fails.
  std::string IniRead(std::string_view section, std::string_view key, std::string_view file) const;

  /// The Windows path of the picture or font that a key names, which is always in the folder Data or below.
  std::string PicturePath(std::string_view value) const;
  /// The Windows path of the sound that a key names: a path with a drive is used as it is, any other is
  /// relative to Data\Sound.
  std::string SoundPath(std::string_view value) const;

  /// There is a disc: one of the two files is there and can be opened.
  bool HasDisc() const;

  const std::string& DiscRoot() const { return discRoot_; }
  const DiscDrive& Drive() const { return drive_; }

 private:
  std::string ReadFile(std::string_view section, std::string_view key, std::string_view file) const;

  std::string discRoot_;
  DiscDrive drive_;
};

}  // namespace orvanta
