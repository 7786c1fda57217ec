#pragma once

#include <span>
#include <string_view>

namespace orvanta {

/// An option of a command. Texts for the user are translated where they are written.
struct OptionInfo {
  std::string_view name;   ///< without the dashes
  std::string_view value;  ///< what stands for its value in help; empty if it takes none
  const char* help;
};

struct ExampleInfo {
  const char* line;
  const char* help;
};

/// All that is known of a command before it runs: help, man pages, completions and the reading of arguments
/// come from here.
struct CommandInfo {
  std::string_view name;
  /// Its arguments, parted by blanks: DISC, A and B are discs, DIR and OUT folders. The last may end in
  /// "...".
  std::string_view arguments;
  const char* summary;
  const char* description;
  std::span<const OptionInfo> options;
  std::span<const ExampleInfo> examples;
};

/// In the order in which help lists them.
std::span<const CommandInfo> Commands();

/// Null if there is none of that name.
const CommandInfo* FindCommand(std::string_view name);

}  // namespace orvanta
