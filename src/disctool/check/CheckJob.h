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

/// What the parts of the check read, and where they report.
struct CheckJob {
  const DiscTree& disc;
  const Catalogue& catalogue;
  const MenuTree& tree;
  DiscFiles& files;
  Findings& findings;
  bool deep = false;  ///< whether to decode sounds and films completely

  Setting Find(const SchemaKey& key) const { return catalogue.Find(key.section, key.name); }
  /// The value as the shell reads it: text that is not a number is 0.
  double Number(std::string_view section, std::string_view key) const;
  /// The size of the picture of a key; nothing if it is missing or cannot be read.
  std::optional<Size> PictureOf(std::string_view section, std::string_view key, std::string_view ending = {});
};

/// The fixed section of that name, ignoring case; empty if there is none.
std::string_view FixedSection(std::string_view name);
/// "BackX of [GLOBAL]"
std::string Naming(std::string_view section, std::string_view key);
/// The Windows path of a picture or font that a key names.
std::string PicturePath(std::string_view value);

/// Whether the files can be read at all. Files in UTF-16 or with a byte order mark are reported only once,
/// since all other findings would follow from that.
bool CheckEncoding(CheckJob& job);
/// Finds lines that the lookup ignores, values that it cuts, and names that occur twice.
void CheckLines(CheckJob& job);
/// Finds missing keys of the fixed sections, and values that are not of their kind.
void CheckSettings(CheckJob& job);
/// Finds faults of the menu tree: items that lead nowhere or lie too deep, and entries that lack something.
void CheckTree(CheckJob& job);
/// Finds sections and keys that nothing reads.
void CheckUnread(CheckJob& job);
/// Finds files that are missing, spelled differently, or not usable.
void CheckFiles(CheckJob& job);
/// Finds programs of entries that cannot run, and files in their parameters that are missing.
void CheckPrograms(CheckJob& job);
/// Finds names of fonts that are not in the disc's files, and links that lead off the disc.
void CheckFonts(CheckJob& job);
void CheckLinks(CheckJob& job);
/// Finds buttons, zones and sliders that the user cannot reach or move.
void CheckLayout(CheckJob& job);
/// The first part of `CheckLayout`, which uses the controls of a shell that shows the disc.
void CheckShown(CheckJob& job);

}  // namespace orvanta
