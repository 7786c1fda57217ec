#pragma once

#include <string>
#include <string_view>

#include "config/DiscDrive.h"

namespace orvanta {

/// The one way to a setting of the disc. All texts are UTF-8 here; the files are Windows-1250.
class INI_Read {
 public:
  /// `discRoot` is the Windows path of the disc's folder, with its trailing backslash.
  INI_Read(std::string discRoot, DiscDrive drive);

  /// The value of `key` in `section`, looked up in `file` of the folder Data and, if that gives nothing, in
  /// Param.ini. Both are read anew at each call. A leading "%:" becomes the drive of the disc. Empty if
  /// anything is missing; never fails.
  std::string IniRead(std::string_view section, std::string_view key, std::string_view file) const;

  /// The Windows path of a picture or font that a key names: always below the folder Data.
  std::string PicturePath(std::string_view value) const;
  /// The Windows path of a sound that a key names: a path with a drive as it is, else below Data\Sound.
  std::string SoundPath(std::string_view value) const;

  const std::string& DiscRoot() const { return discRoot_; }
  const DiscDrive& Drive() const { return drive_; }

 private:
  std::string ReadFile(std::string_view section, std::string_view key, std::string_view file) const;

  std::string discRoot_;
  DiscDrive drive_;
};

}  // namespace orvanta
