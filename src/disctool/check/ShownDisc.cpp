#include "disctool/check/ShownDisc.h"

#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <system_error>

#include "config/Windows1250.h"
#include "platform/headless/PictureFile.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// A new folder that only the user may enter; empty if it cannot be created.
fs::path MakeFolder() {
  std::error_code error;
  std::string name = (fs::temp_directory_path(error) / "orvanta-check-XXXXXX").string();
  return mkdtemp(name.data()) ? fs::path(name) : fs::path();
}

/// The fixed sections and the first menu. A disc may have a hundred thousand other sections, which the shell
/// would search for each setting.
std::string WithoutEntries(const IniFile& ini) {
  std::string text;
  for (const IniSection& section : ini.sections) {
    const std::string name = FromWindows1250(section.name);
    if (FixedSection(name).empty() && !EqualNoCase(name, "MAINMENU")) continue;
    text += "[" + section.name + "]\r\n";
    // A quoted value keeps its blanks and its own quotes.
    for (const IniEntry& entry : section.entries) text += entry.key + "=\"" + entry.value + "\"\r\n";
  }
  return text;
}

/// Null if loading the form fails.
template <class Slot>
auto Loaded(Slot& slot) -> decltype(slot.Loaded()) {
  try {
    return &*slot;
  } catch (const ProgramEnd&) {
    return nullptr;
  } catch (const VirtualTimeOut&) {
    return nullptr;
  }
}

}  // namespace

PicturePtr ShownDisc::Host::LoadPicture(const fs::path& file) {
  if (file.empty()) return nullptr;
  const std::string path = file.lexically_relative(driveRoot).string();
  const auto size = job_.files.PictureSize(path);
  return size ? std::make_shared<PictureFile>(path, *size) : nullptr;
}

ShownDisc::ShownDisc(CheckJob& job) : folder_(MakeFolder()), host_(folder_, job), shell_(host_) {
  if (folder_.empty()) return;
  CopySettings(job);
  AddPictures(job);
}

ShownDisc::~ShownDisc() {
  std::error_code error;
  if (!folder_.empty()) fs::remove_all(folder_, error);
}

void ShownDisc::AddFile(const std::string& path, const std::string& bytes) const {
  std::error_code error;
  fs::create_directories((folder_ / path).parent_path(), error);
  std::ofstream(folder_ / path, std::ios::binary) << bytes;
}

void ShownDisc::CopySettings(const CheckJob& job) const {
  for (const Catalogue::File& file : job.catalogue.Files()) {
    const std::string path = file.path.lexically_relative(job.disc.Name()).string();
    if (file.found) AddFile(path, WithoutEntries(file.ini));
  }
}

void ShownDisc::AddPictures(CheckJob& job) const {
  for (const SchemaKey& key : kSchema) {
    const Setting value = job.Find(key);
    if (key.section == kNodeSection || !value) continue;
    for (const char* ending : {"0.gif", "1.gif", "2.gif"}) {
      if (key.kind != Kind::Picture && key.kind != Kind::Base) break;
      const FoundPath& found =
          job.files.Find(PicturePath(value.value + (key.kind == Kind::Base ? ending : "")));
      if (found && job.files.KindOf(found.path.native()) == DiscTree::Kind::File)
        AddFile(found.path.native(), "");
      if (key.kind == Kind::Picture) break;
    }
  }
}

const MainForm* ShownDisc::Main() { return folder_.empty() ? nullptr : Loaded(shell_.MainForm); }

const frmKino* ShownDisc::Kino() { return folder_.empty() ? nullptr : Loaded(shell_.frmKino); }

}  // namespace orvanta
