// Checks the files that keys name.

#include <algorithm>
#include <array>
#include <string>

#include "config/DiscDrive.h"
#include "config/NumberedKey.h"
#include "config/Windows1250.h"
#include "disctool/check/CheckJob.h"
#include "disctool/disc/EntryTarget.h"
#include "startup/Design.h"

namespace orvanta {
namespace {

constexpr char kDrive = Catalogue::kDiscRoot.front();

/// A file that a key names: where it is named, how, and its Windows path.
struct NamedFile {
  const DiscPlace& place;
  std::string naming;
  std::string path;
  std::string value{};   ///< that names it; part of the path
  std::string ending{};  ///< what the shell appends to the value
};

/// The value in the letters that the disc has; empty if the path to the file was not a plain one.
std::string Respelled(const NamedFile& file, const FoundPath& found) {
  const std::string real = found.path.native();
  const std::size_t end = file.path.size() - std::min(file.ending.size(), file.path.size());
  if (file.value.empty() || real.size() > file.path.size() || file.value.size() > end) return {};
  std::string path = file.path.substr(0, file.path.size() - real.size());
  for (const char c : real) path += c == '/' ? '\\' : c;
  if (!EqualNoCase(path, file.path)) return {};
  return path.substr(end - file.value.size(), file.value.size());
}

/// The file on the disc; if it is missing, reports that and returns an empty path. A program may be a folder,
/// which is then opened.
std::string Locate(CheckJob& job, const NamedFile& file, bool folderToo = false) {
  const FoundPath& found = job.files.Find(file.path);
  if (!found) {
    job.findings.Error(file.place, "no-file",
                       Translated("%1 names a file that is not there: %2", file.naming, file.path));
    return {};
  }
  if (found.otherCase)
    job.findings.Warning(file.place, "other-case",
                         Translated("%1 is found only because case is ignored: %2 is spelled %3", file.naming,
                                    file.path, found.path.filename().string()),
                         Respelled(file, found));
  const DiscTree::Kind kind = job.files.KindOf(found.path.native());
  if (kind == DiscTree::Kind::Other || (kind == DiscTree::Kind::Folder && !folderToo)) {
    job.findings.Error(file.place, "special-file",
                       Translated("%1 names something that is not a file: %2", file.naming, file.path));
    return {};
  }
  return found.path.native();
}

void CheckPicture(CheckJob& job, const NamedFile& file) {
  const std::string path = Locate(job, file);
  if (path.empty()) return;
  const auto size = job.files.PictureSize(path);
  if (!size)
    job.findings.Error(file.place, "no-picture",
                       Translated("%1 cannot be read as a picture: %2", file.naming, file.path));
  if (size && std::int64_t{size->width} * size->height > job.files.MostPixels())
    job.findings.Error(file.place, "picture-too-large",
                       Translated("%1 is %2 by %3 pixels large, which is more than the shell shows",
                                  file.naming, size->width, size->height));
}

void CheckFont(CheckJob& job, const NamedFile& file) {
  const std::string path = Locate(job, file);
  if (!path.empty() && job.files.FontNames(path).empty())
    job.findings.Error(file.place, "no-font",
                       Translated("%1 cannot be read as a font: %2", file.naming, file.path));
}

void CheckMedia(CheckJob& job, const NamedFile& file, bool film) {
  const std::string path = Locate(job, file);
  if (path.empty()) return;
  if (!job.files.CanPlay(path, film)) {
    job.findings.Error(file.place, "not-playable",
                       film ? Translated("%1 cannot be played as a film: %2", file.naming, file.path)
                            : Translated("%1 cannot be played: %2", file.naming, file.path));
    return;
  }
  const std::string problem = job.deep ? job.files.DecodingProblem(path) : std::string();
  if (!problem.empty())
    job.findings.Error(
        file.place, "breaks-off",
        Translated("%1 cannot be decoded to its end: %2: %3", file.naming, file.path, problem));
}

/// Reports a path that leads off the disc, or that depends on where the shell was started.
bool LiesOnDisc(CheckJob& job, const NamedFile& file) {
  const std::string& path = file.path;
  const bool hasDrive = HasDrive(path);
  const bool network = path.starts_with("\\\\") || path.starts_with("//");
  if (network || (hasDrive && !EqualNoCase(path.substr(0, 1), std::string(1, kDrive)))) {
    job.findings.Warning(
        file.place, "off-the-disc",
        Translated("%1 leads off the disc: %2; begin it with %:\\ to stay on it", file.naming, path));
    return false;
  }
  if (!hasDrive && !path.starts_with('\\') && !path.starts_with('/')) {
    job.findings.Warning(
        file.place, "no-drive",
        Translated("%1 depends on the folder in which the shell is started: %2; begin it with "
                   "%:\\ to name a file of the disc",
                   file.naming, path));
    return false;
  }
  return true;
}

/// A sound with a drive is used as it is; any other is in its folder.
void CheckSound(CheckJob& job, const std::string& naming, const Setting& found) {
  NamedFile file{found.place, naming, found.value, found.value};
  if (!HasDrive(found.value)) file.path = PicturePath("Sound\\" + found.value);
  if (LiesOnDisc(job, file)) CheckMedia(job, file, false);
}

void MainSize(CheckJob& job, const std::string& naming, const Setting& found) {
  const auto size = job.PictureOf("GLOBAL", "MainGfx");
  if (size && *size != kMainWindow)
    job.findings.Warning(found.place, "main-size",
                         Translated("%1 is %2 by %3 pixels large, the window %4 by %5", naming, size->width,
                                    size->height, kMainWindow.width, kMainWindow.height));
}

/// The three pictures of a button.
void ButtonArt(CheckJob& job, const SchemaKey& key, const std::string& naming, const Setting& found) {
  constexpr const char* kEndings[] = {"0.gif", "1.gif", "2.gif"};
  bool differ = false;
  for (const char* ending : kEndings) {
    CheckPicture(job, {found.place, naming, PicturePath(found.value + ending), found.value, ending});
    const auto first = job.PictureOf(key.section, key.name, kEndings[0]);
    const auto size = job.PictureOf(key.section, key.name, ending);
    differ = differ || (first && size && *first != *size);
  }
  if (differ)
    job.findings.Warning(found.place, "looks-differ",
                         Translated("the three looks of %1 differ in size", naming));
}

void Fixed(CheckJob& job, const SchemaKey& key, const std::string& name, const Setting& found) {
  const std::string naming = Naming(key.section, name);
  switch (key.kind) {
    case Kind::Picture:
      CheckPicture(job, {found.place, naming, PicturePath(found.value), found.value});
      if (name == "MainGfx") MainSize(job, naming, found);
      return;
    case Kind::Base: return ButtonArt(job, key, naming, found);
    case Kind::Font: return CheckFont(job, {found.place, naming, PicturePath(found.value), found.value});
    case Kind::Sound: return CheckSound(job, naming, found);
    default: return;
  }
}

void Target(CheckJob& job, const MenuNode& node) {
  const bool program = node.kind == NodeKind::Program;
  const char* key = program ? "Execute" : "Parameters";
  const Setting found = job.catalogue.Find(node.name, key);
  if (!found || (program && IsAddress(found.value))) return;
  NamedFile file{found.place, Naming(node.name, key), found.value, found.value};
  if (!LiesOnDisc(job, file)) return;
  file.path = OnDrive(found.value);
  if (!program) return CheckMedia(job, file, node.kind == NodeKind::Film);
  Locate(job, file, true);
}

void Entry(CheckJob& job, const MenuNode& node) {
  for (int number = 1; number <= node.shots; ++number) {
    const std::string key = NumberedKey("Shot", number);
    const Setting found = job.catalogue.Find(node.name, key);
    CheckPicture(job, {found.place, Naming(node.name, key), PicturePath(found.value), found.value});
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
