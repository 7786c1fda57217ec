#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/FileKind.h"

namespace orvanta {

/// What runs a program on this machine.
struct Runner {
  /// "wine", "dosbox" or the interpreter of a script; empty if the system itself runs the file, and for a
  /// file that is not a program.
  std::string name{};
  /// Where the runner is; empty if there is no name, or if the runner is missing.
  std::filesystem::path path{};
  /// What has to be installed first: "wine", "wine32" (the part of Wine that runs programs of 16 and 32
  /// bits), "dosbox", an interpreter or a loader. Empty if nothing is missing.
  std::string missing{};
};

/// `searchPath` is written as in `$PATH`. The 32-bit part of Wine is looked for beside the `wine` that is
/// found, in the folders where the packages of Debian, Fedora, Arch and Wine itself put it; anywhere else it
/// counts as missing.
Runner FindRunner(const FileFacts& facts, std::string_view searchPath);

}  // namespace orvanta
