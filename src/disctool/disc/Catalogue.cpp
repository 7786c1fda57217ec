#include "disctool/disc/Catalogue.h"

#include <optional>

#include "config/IniRead.h"
#include "config/Windows1250.h"
#include "disctool/Translation.h"

namespace orvanta {
namespace {

constexpr std::array kNames = {kMenuFile, kSecondFile};

Catalogue::File ReadFile(const DiscTree& disc, std::string_view fileName) {
  const std::string name(fileName);
  Catalogue::File file;
  file.path = disc.Place("Data/" + name);
  const FoundPath found = disc.Find(std::string(Catalogue::kDiscRoot) + "Data\\" + name);
  const DiscTree::Entry entry = disc.EntryAt(found.path.native());
  if (!found || entry.kind != DiscTree::Kind::File) return file;
  file.path = disc.Place(found.path.native());
  file.found = true;
  file.tooLarge = entry.size > Catalogue::kLargestFile;
  if (file.tooLarge) return file;
  const auto bytes = disc.Read(found.path.native());
  file.unreadable = !bytes;
  if (bytes) file.ini = ParseIniFile(*bytes);
  return file;
}

}  // namespace

Catalogue::Catalogue(const DiscTree& disc) {
  for (std::size_t i = 0; i < files_.size(); ++i) files_[i] = ReadFile(disc, kNames[i]);
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

std::string NoDisc() {
  return Translated("there is no disc here: neither %1 nor %2", "Data/" + std::string(kMenuFile),
                    "Data/" + std::string(kSecondFile));
}

std::string NoDiscIn(const std::filesystem::path& disc) { return disc.string() + ": " + NoDisc(); }

}  // namespace orvanta
