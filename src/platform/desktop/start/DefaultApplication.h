#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// What the desktop's default application is to open: a file or folder, or an address.
struct OpenTarget {
  /// The type under which applications register: "text/plain", "inode/directory", "x-scheme-handler/http".
  std::string type;
  /// A host path, or an address.
  std::string place;
  bool isAddress = false;
};

/// The command line that opens a target.
struct ApplicationCommand {
  enum class State {
    Found,
    NotRegistered,  ///< No application is registered for the type.
    Missing,        ///< Applications are registered, and none of them is on this system.
  };
  State state = State::NotRegistered;
  /// The program's path and its arguments if one was found.
  std::vector<std::string> arguments;
};

/// A folder or a regular file with the type that the desktop's database of types gives it, by name and
/// content.
OpenTarget FolderTarget(const std::filesystem::path& folder);
OpenTarget FileTarget(const std::filesystem::path& file);
/// `scheme` is in lower case and without its colon.
OpenTarget AddressTarget(std::string_view scheme, std::string_view address);

/// Finds the default application as the desktop's own programs do: the user's choice, then the system's, then
/// any application that says it opens the type, or a more general one (freedesktop.org, "Association between
/// MIME types and applications"). Programs are looked for in `searchPath`.
ApplicationCommand FindApplication(const OpenTarget& target, std::string_view searchPath);

}  // namespace orvanta
