#include "startup/ControlFiles.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "platform/AsciiText.h"

namespace orvanta {
namespace {

constexpr std::array kControlNames = {"COMCT232.OCX", "COMCTL32.OCX"};
constexpr std::int32_t kLastFailure = 32;

/// As everywhere in the program, text that is not a number counts as 0, and a number outside the range is
/// clamped.
std::int16_t Number(std::string_view text) {
  using Limits = std::numeric_limits<std::int16_t>;
  text = Trimmed(text, " ");
  std::int64_t value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec == std::errc::result_out_of_range) return text.front() == '-' ? Limits::min() : Limits::max();
  return static_cast<std::int16_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

std::string Half(std::uint32_t half) { return std::to_string(static_cast<std::int16_t>(half & 0xFFFFU)); }

}  // namespace

std::string GetSysDir(ControlFilesHost& host) { return host.SystemDirectory() + "\\"; }

bool FileExists(ControlFilesHost& host, const std::string& path) { return host.CanRead(path); }

std::string FileVersionText(ControlFilesHost& host, const std::string& path) {
  const auto version = host.Version(path);
  if (!version) return {};
  return Half(version->most >> 16) + "." + Half(version->most) + "." + Half(version->least >> 16) + "." +
         Half(version->least);
}

std::int16_t VersionPart(std::string_view text, std::uint8_t part) {
  text = Trimmed(text, " ");
  std::int16_t number = 0;
  for (int i = 0; i < part; ++i) {
    const auto point = text.find('.');
    number = Number(text.substr(0, point));
    if (point == std::string_view::npos) break;
    text.remove_prefix(point + 1);
  }
  return number;
}

bool IsNewerOnDisc(ControlFilesHost& host, const ControlFolders& folders, const std::string& name) {
  const std::string installed = FileVersionText(host, folders.winSysDir + name);
  const std::string disc = FileVersionText(host, folders.discSysDir + name);
  bool newer = false;
  // The numbers are compared separately: 4.70 on the disc counts as newer than an installed 5.0.
  for (const std::uint8_t part : {std::uint8_t{1}, std::uint8_t{2}})
    if (VersionPart(disc, part) > VersionPart(installed, part)) newer = true;
  return newer;
}

void RegisterControl(ControlFilesHost& host, const ControlFolders& folders, const std::string& path) {
  const std::int32_t result = host.Start(folders.discSysDir + "REGOCX32.EXE", path);
  if (result >= 0 && result <= kLastFailure) host.Message("Blad");
}

void CheckControls(ControlFilesHost& host, const ControlFolders& folders) {
  for (const std::string name : kControlNames) {
    const std::string installed = folders.winSysDir + name;
    if (!FileExists(host, installed)) host.Copy(folders.discSysDir + name, installed);
    if (IsNewerOnDisc(host, folders, name)) host.Copy(folders.discSysDir + name, installed);
    RegisterControl(host, folders, installed);
  }
}

}  // namespace orvanta
