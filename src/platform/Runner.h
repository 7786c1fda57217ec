#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/FileKind.h"

namespace orvanta {

/// What runs a program on this machine.
struct Runner {
  /// "wine", "dosbox", or a script's interpreter; empty if the system itself runs the file, or if it is not a
  /// program.
  std::string name{};
  /// Where the runner is; empty without a name, and if it is missing.
  std::filesystem::path path{};
  /// What must be installed first: "wine", "wine32" (the half of Wine that runs programs of 16 and 32 bits),
  /// "dosbox", an interpreter or a loader. Empty if nothing is missing.
  std::string missing{};
};

/// `searchPath` is as in `$PATH`. The 32-bit half of Wine is looked for where Debian, Fedora, Arch and Wine's
/// own packages put it, beside the `wine` that is found; elsewhere it counts as missing.
Runner FindRunner(const FileFacts& facts, std::string_view searchPath);

}  // namespace orvanta
