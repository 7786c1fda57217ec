#include "config/IniRead.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include "config/ProfileString.h"
#include "config/Windows1250.h"

namespace orvanta {
namespace {

std::size_t CharacterLength(std::string_view utf8) {
  std::size_t length = std::min<std::size_t>(1, utf8.size());
  while (length < utf8.size() && (static_cast<unsigned char>(utf8[length]) & 0xC0) == 0x80) ++length;
  return length;
}

}  // namespace

INI_Read::INI_Read(std::string discRoot, DiscDrive drive)
    : discRoot_(std::move(discRoot)), drive_(std::move(drive)) {}

std::string INI_Read::IniRead(std::string_view section, std::string_view key, std::string_view file) const {
  const auto sectionBytes = ToWindows1250(section);
  const auto keyBytes = ToWindows1250(key);
  if (!sectionBytes || !keyBytes) return {};
  std::string bytes = ReadFile(*sectionBytes, *keyBytes, file);
  if (bytes.empty()) bytes = ReadFile(*sectionBytes, *keyBytes, kSecondFile);
  std::string value = FromWindows1250(bytes);
  if (value.starts_with("%:")) value.replace(0, 1, discRoot_, 0, CharacterLength(discRoot_));
  return value;
}

std::string INI_Read::ReadFile(std::string_view section, std::string_view key, std::string_view file) const {
  const FoundPath found = drive_.Find(PicturePath(file));
  return found ? ProfileString(found.path, section, key) : std::string();
}

bool INI_Read::HasDisc() const {
  constexpr std::array kFiles{kMenuFile, kSecondFile};
  return std::any_of(kFiles.begin(), kFiles.end(), [this](std::string_view name) {
    const std::filesystem::path file = drive_.Find(PicturePath(name)).path;
    std::error_code error;
    // Nothing else is opened: a FIFO would be waited for.
    return std::filesystem::is_regular_file(file, error) && std::ifstream(file).good();
  });
}

std::string INI_Read::PicturePath(std::string_view value) const {
  return (discRoot_ + "Data\\").append(value);
}

std::string INI_Read::SoundPath(std::string_view value) const {
  if (value.substr(CharacterLength(value)).starts_with(':')) return std::string(value);
  return (discRoot_ + "Data\\Sound\\").append(value);
}

}  // namespace orvanta
