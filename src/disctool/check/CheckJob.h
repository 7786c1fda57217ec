#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "config/SchemaTable.h"
#include "disctool/check/Findings.h"
#include "disctool/disc/DiscFiles.h"
#include "disctool/disc/MenuTree.h"

namespace orvanta {

/// What the parts of the check look at and where they report.
struct CheckJob {
  const DiscTree& disc;
  const Catalogue& catalogue;
  const MenuTree& tree;
  DiscFiles& files;
  Findings& findings;
  bool deep = false;  ///< decode sounds and films whole

  Setting Find(const SchemaKey& key) const { return catalogue.Find(key.section, key.name); }
  /// A text that is no number is 0 to the shell.
  double Number(std::string_view section, std::string_view key) const;
  /// The size of the picture of a key; nothing if it is missing or cannot be read.
  std::optional<Size> PictureOf(std::string_view section, std::string_view key, std::string_view ending = {});
};

/// The fixed section that a name means in any mix of capitals; empty if it is none.
std::string_view FixedSection(std::string_view name);
/// "BackX of [GLOBAL]"
std::string Naming(std::string_view section, std::string_view key);
/// The Windows path of a picture or font that a key names.
std::string PicturePath(std::string_view value);

/// Whether the files can be read at all. Those in UTF-16 or with a byte order mark are reported, once each:
/// all else would be a consequence.
bool CheckEncoding(CheckJob& job);
/// Lines that the lookup passes over, values that it cuts, names that stand twice.
void CheckLines(CheckJob& job);
/// The fixed sections: what is missing, and what is no value of its kind.
void CheckSettings(CheckJob& job);
/// The tree: what leads nowhere, what lies too deep, what an entry lacks.
void CheckTree(CheckJob& job);
/// Sections and keys that nothing reads.
void CheckUnread(CheckJob& job);
/// The files that keys name: there, spelled as they are called, of use.
void CheckFiles(CheckJob& job);
/// Names of fonts that are not in the disc's files, and links that lead off the disc.
void CheckFonts(CheckJob& job);
void CheckLinks(CheckJob& job);
/// Buttons, zones and sliders that the user cannot reach or move.
void CheckLayout(CheckJob& job);
/// The first part of `CheckLayout`, by the controls of a shell that shows the disc.
void CheckShown(CheckJob& job);

}  // namespace orvanta
