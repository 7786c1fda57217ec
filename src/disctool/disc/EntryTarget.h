#pragma once

#include <string>
#include <string_view>

#include "disctool/disc/DiscTree.h"
#include "platform/FileKind.h"

namespace orvanta {

/// An address that a browser or a mail program opens, not a path.
bool IsAddress(std::string_view value);

/// A path with the disc's drive in front, as `DiscTree::Find` wants it.
std::string OnDrive(const std::string& path);

/// What the value of `Execute` leads to.
struct EntryTarget {
  enum class Place { Address, OffTheDisc, Missing, Special, Folder, File };
  Place place = Place::Missing;
  std::string path{};  ///< of a file or folder, as `DiscTree` names it
  FileFacts facts{};   ///< of a file
};

EntryTarget TargetOf(const DiscTree& disc, const std::string& value);

/// A word for what the target is, the same in every language: "windows-16", "folder", "missing" ...
std::string_view IdOf(const EntryTarget& target);

}  // namespace orvanta
