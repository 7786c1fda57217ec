#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "config/DiscDrive.h"
#include "disctool/disc/DiscProbe.h"

namespace orvanta {

/// The files of a disc: finds what `DiscDrive` finds, but reads each folder once, and tries each file once.
class DiscFiles {
 public:
  /// `probe` must outlive it.
  DiscFiles(std::filesystem::path discFolder, DiscProbe& probe);

  struct Found {
    HostPath host;
    bool otherCase = false;  ///< found only by ignoring small and capital letters
  };
  /// `path` is a Windows path with the disc's drive letter.
  const Found& Find(const std::string& path);

  /// As those of the probe; a file that is not regular is none of anything.
  std::optional<Size> PictureSize(const std::filesystem::path& file);
  bool IsFont(const std::filesystem::path& file);
  bool CanPlay(const std::filesystem::path& file, bool film);

 private:
  Found Search(const std::string& path);
  const std::map<std::string, std::string>& FolderOf(const std::filesystem::path& folder);

  std::filesystem::path root_;
  DiscProbe& probe_;
  std::unordered_map<std::string, Found> found_;
  /// Folded name to the first name in byte order, for each folder.
  std::unordered_map<std::string, std::map<std::string, std::string>> folders_;
  std::unordered_map<std::string, std::optional<Size>> pictures_;
  std::unordered_map<std::string, bool> fonts_, sounds_, films_;
};

}  // namespace orvanta
