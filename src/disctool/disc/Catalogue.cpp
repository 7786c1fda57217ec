#include "disctool/disc/Catalogue.h"

#include <fstream>
#include <optional>
#include <sstream>
#include <system_error>

#include "config/Windows1250.h"
#include "disctool/Translation.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 2> kNames = {"Menu.ini", "Param.ini"};

Catalogue::File ReadFile(const DiscDrive& drive, const fs::path& folder, std::string_view name) {
  Catalogue::File file;
  file.path = folder / "Data" / name;
  const HostPath found = drive.Find(std::string(Catalogue::kDiscRoot) + "Data\\" + std::string(name));
  std::error_code error;
  // A FIFO or a device of this name would be waited for.
  if (!found || !fs::is_regular_file(found.path, error)) return file;
  file.path = found.path;
  file.found = true;
  file.tooLarge = fs::file_size(found.path, error) > Catalogue::kLargestFile;
  if (file.tooLarge) return file;
  std::ifstream in(found.path, std::ios::binary);
  std::ostringstream bytes;
  // An empty file gives no byte, which a stream takes for a failure.
  if (in.peek() != std::ifstream::traits_type::eof()) bytes << in.rdbuf();
  file.unreadable = !in.is_open() || in.bad() || bytes.fail();
  file.ini = ParseIniFile(bytes.str());
  return file;
}

}  // namespace

Catalogue::Catalogue(const fs::path& discFolder) {
  const DiscDrive drive(discFolder);
  for (std::size_t i = 0; i < files_.size(); ++i) files_[i] = ReadFile(drive, discFolder, kNames[i]);
}

Setting Catalogue::Find(std::string_view section, std::string_view key) const {
  const auto sectionBytes = ToWindows1250(section);
  const auto keyBytes = ToWindows1250(key);
  if (!sectionBytes || !keyBytes) return {};
  for (const File& file : files_) {
    const IniSection* in = file.ini.Find(*sectionBytes);
    const IniEntry* entry = in ? in->Find(*keyBytes) : nullptr;
    if (!entry || entry->value.empty()) continue;
    std::string value = FromWindows1250(entry->value);
    if (value.starts_with("%:")) value.front() = kDiscRoot.front();
    return {std::move(value), {file.path, entry->line}};
  }
  return {};
}

DiscPlace Catalogue::PlaceOf(std::string_view section) const {
  const auto bytes = ToWindows1250(section);
  for (const File& file : files_) {
    if (const IniSection* in = bytes ? file.ini.Find(*bytes) : nullptr) return {file.path, in->line};
  }
  return {files_[files_[1].found ? 1 : 0].path, 1};
}

bool Catalogue::HasSection(std::string_view section) const {
  const auto bytes = ToWindows1250(section);
  return bytes && (files_[0].ini.Find(*bytes) || files_[1].ini.Find(*bytes));
}

std::string NoDiscIn(const fs::path& folder) {
  return folder.string() + ": " +
         Translated("there is no disc here: neither %1 nor %2", "Data/Menu.ini", "Data/Param.ini");
}

}  // namespace orvanta
