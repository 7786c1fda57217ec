#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// What the default application of the desktop is to open: a file, a folder or an address.
struct OpenTarget {
  /// The type for which applications register: "text/plain", "inode/directory", "x-scheme-handler/http".
  std::string type;
  /// A path of the host, or an address.
  std::string place;
  bool isAddress = false;
};

/// The command line that opens a target.
struct ApplicationCommand {
  enum class State {
    Found,
    NotRegistered,  ///< no application is registered for the type
    Missing,        ///< applications are registered, but none of them is installed
  };
  State state = State::NotRegistered;
  /// The path of the program and its arguments, if one was found.
  std::vector<std::string> arguments;
};

/// A folder or a regular file with its type, which the desktop's database of types determines by name and
/// content.
OpenTarget FolderTarget(const std::filesystem::path& folder);
OpenTarget FileTarget(const std::filesystem::path& file);
/// `scheme` is in lower case, without the colon.
OpenTarget AddressTarget(std::string_view scheme, std::string_view address);

/// Finds the default application as the desktop's own programs do: the user's choice, then that of the
/// system, then any application that opens the type or a more general one (freedesktop.org, "Association
/// between MIME types and applications"). Programs are looked for in `searchPath`.
ApplicationCommand FindApplication(const OpenTarget& target, std::string_view searchPath);

}  // namespace orvanta
