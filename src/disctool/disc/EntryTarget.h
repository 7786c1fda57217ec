#pragma once

#include <string>
#include <string_view>

#include "disctool/disc/DiscTree.h"
#include "platform/FileKind.h"

namespace orvanta {

/// Whether it is an address for a browser or a mail program rather than a path.
bool IsAddress(std::string_view value);

/// A path that begins with the disc's drive, as `DiscTree::Find` needs it.
std::string OnDrive(const std::string& path);

/// What the value of `Execute` leads to.
struct EntryTarget {
  enum class Place { Address, OffTheDisc, Missing, Special, Folder, File };
  Place place = Place::Missing;
  std::string path{};  ///< the file or folder, as `DiscTree` names it
  FileFacts facts{};   ///< for a file
};

EntryTarget TargetOf(const DiscTree& disc, const std::string& value);

/// The kind of a target in English, to be translated: "16-bit Windows program".
const char* NameOf(const EntryTarget& target);

/// The id of the kind of a target, which is the same in every language: "windows-16", "folder", "missing" and
/// so on.
std::string_view IdOf(const EntryTarget& target);

}  // namespace orvanta
