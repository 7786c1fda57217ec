#pragma once

#include <span>
#include <string_view>

namespace orvanta {

/// An option of a command. Texts for the user are translated when they are shown.
struct OptionInfo {
  std::string_view name;   ///< without the dashes
  std::string_view value;  ///< the name of its value in help; empty if it takes none
  const char* help;
};

struct ExampleInfo {
  const char* line;
  const char* help;
};

/// Everything about a command before it runs: help, manual pages, completions and the parser all use it.
struct CommandInfo {
  std::string_view name;
  /// Its arguments, separated by blanks: DISC, A and B are discs, DIR and OUT folders. The last one may end
  /// in "...".
  std::string_view arguments;
  const char* summary;
  const char* description;
  std::span<const OptionInfo> options;
  std::span<const ExampleInfo> examples;
};

/// All commands, in the order in which help lists them.
std::span<const CommandInfo> Commands();

/// The command of that name; null if there is none.
const CommandInfo* FindCommand(std::string_view name);

}  // namespace orvanta
