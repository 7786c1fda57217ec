// The files that keys name.

#include <array>
#include <string>

#include "config/NumberedKey.h"
#include "config/Windows1250.h"
#include "disctool/check/CheckParts.h"

namespace orvanta {
namespace {

constexpr char kDrive = Catalogue::kDiscRoot.front();

/// A file that some key names: where it is named, how, and the Windows path to it.
struct NamedFile {
  const DiscPlace& place;
  std::string naming;
  std::string path;
};

/// The file on the disc; empty, and reported, if it is not there.
std::string Locate(CheckJob& job, const NamedFile& file) {
  const FoundPath& found = job.files.Find(file.path);
  if (!found) {
    job.findings.Error(file.place, "no-file", file.naming + " names a file that is not there: " + file.path);
    return {};
  }
  if (found.otherCase)
    job.findings.Warning(file.place, "other-case",
                         file.naming + " is found only by ignoring small and capital letters: " + file.path +
                             " is called " + found.path.filename().string());
  return found.path.native();
}

void Picture(CheckJob& job, const NamedFile& file) {
  const std::string path = Locate(job, file);
  if (!path.empty() && !job.files.PictureSize(path))
    job.findings.Error(file.place, "no-picture", file.naming + " cannot be read as a picture: " + file.path);
}

void Font(CheckJob& job, const NamedFile& file) {
  const std::string path = Locate(job, file);
  if (!path.empty() && !job.files.IsFont(path))
    job.findings.Error(file.place, "no-font", file.naming + " cannot be read as a font: " + file.path);
}

void Media(CheckJob& job, const NamedFile& file, bool film) {
  const std::string path = Locate(job, file);
  if (!path.empty() && !job.files.CanPlay(path, film))
    job.findings.Error(
        file.place, "not-playable",
        file.naming + (film ? " cannot be played as a film: " : " cannot be played: ") + file.path);
}

/// Reports a path that leads off the disc, or that depends on where the shell was started.
bool LiesOnDisc(CheckJob& job, const NamedFile& file) {
  const std::string& path = file.path;
  const bool hasDrive = path.size() >= 2 && path[1] == ':';
  const bool network = path.starts_with("\\\\") || path.starts_with("//");
  if (network || (hasDrive && !EqualNoCase(path.substr(0, 1), std::string(1, kDrive)))) {
    job.findings.Warning(file.place, "off-the-disc",
                         file.naming + " leads off the disc: " + path + "; begin it with %:\\ to stay on it");
    return false;
  }
  if (!hasDrive && !path.starts_with('\\') && !path.starts_with('/')) {
    job.findings.Warning(file.place, "no-drive",
                         file.naming + " depends on the folder in which the shell is started: " + path +
                             "; begin it with %:\\ to name a file of the disc");
    return false;
  }
  return true;
}

/// With the disc's drive in front, as `DiscFiles` wants it.
std::string OnDrive(const std::string& path) {
  const bool hasDrive = path.size() >= 2 && path[1] == ':';
  return hasDrive ? path : std::string(1, kDrive) + ":" + path;
}

bool IsAddress(const std::string& value) {
  for (const char* scheme : {"http:", "https:", "mailto:"})
    if (EqualNoCase(value.substr(0, std::string(scheme).size()), scheme)) return true;
  return false;
}

/// A sound with a drive is taken as it is, any other lies in its folder.
void Sound(CheckJob& job, const std::string& naming, const Setting& found) {
  const bool hasDrive = found.value.size() >= 2 && found.value[1] == ':';
  NamedFile file{found.place, naming, found.value};
  if (!hasDrive) file.path = PicturePath("Sound\\" + found.value);
  if (LiesOnDisc(job, file)) Media(job, file, false);
}

void Fixed(CheckJob& job, const SchemaKey& key, const std::string& name, const Setting& found) {
  const std::string naming = Naming(key.section, name);
  switch (key.kind) {
    case Kind::Picture: return Picture(job, {found.place, naming, PicturePath(found.value)});
    case Kind::Base:
      for (const char* ending : {"0.gif", "1.gif", "2.gif"})
        Picture(job, {found.place, naming, PicturePath(found.value + ending)});
      return;
    case Kind::Font: return Font(job, {found.place, naming, PicturePath(found.value)});
    case Kind::Sound: return Sound(job, naming, found);
    default: return;
  }
}

void Target(CheckJob& job, const MenuNode& node) {
  const bool program = node.kind == NodeKind::Program;
  const char* key = program ? "Execute" : "Parameters";
  const Setting found = job.catalogue.Find(node.name, key);
  if (!found || (program && IsAddress(found.value))) return;
  NamedFile file{found.place, Naming(node.name, key), found.value};
  if (!LiesOnDisc(job, file)) return;
  file.path = OnDrive(found.value);
  if (!program) return Media(job, file, node.kind == NodeKind::Film);
  Locate(job, file);
}

void Entry(CheckJob& job, const MenuNode& node) {
  for (int number = 1; number <= node.shots; ++number) {
    const std::string key = NumberedKey("Shot", number);
    const Setting found = job.catalogue.Find(node.name, key);
    Picture(job, {found.place, Naming(node.name, key), PicturePath(found.value)});
  }
  Target(job, node);
}

}  // namespace

void CheckFiles(CheckJob& job) {
  for (const SchemaKey& key : kSchema) {
    if (key.section == kNodeSection) continue;
    for (int number = 1; number <= kLongestRun; ++number) {
      const std::string name =
          key.presence == Presence::Run ? NumberedKey(key.name, number) : std::string(key.name);
      const Setting found = job.catalogue.Find(key.section, name);
      if (!found) break;
      Fixed(job, key, name, found);
      if (key.presence != Presence::Run) break;
    }
  }
  for (const MenuNode& node : job.tree.nodes)
    if (node.kind != NodeKind::Menu && node.kind != NodeKind::Inert) Entry(job, node);
}

}  // namespace orvanta
