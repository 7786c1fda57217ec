#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "disctool/command/CommandTable.h"

namespace orvanta {

/// What the user asked for.
struct Request {
  const CommandInfo* command = nullptr;  ///< null if only --help, --version and the like are asked for
  std::vector<std::string> words;        ///< the arguments after the command
  std::map<std::string, std::string, std::less<>> options;  ///< without dashes, with their values
  std::string problem;                                      ///< why it cannot be done, empty if it can

  bool Has(std::string_view option) const { return options.contains(option); }
  /// Empty if the option is not given.
  std::string Option(std::string_view option) const;
  /// None for `auto` and without the option.
  std::optional<int> Zoom() const;
  /// The value of --cache-limit in bytes; nothing without the option.
  std::optional<std::uintmax_t> CacheLimit() const;
};

/// Reads the arguments of the tool, without its own name, by the table of commands. Options and arguments may
/// stand in any order; "--" ends the options.
Request ParseArguments(std::span<const std::string> arguments);

/// The options of the tool itself.
std::span<const OptionInfo> GeneralOptions();

/// "DISC OUT" in its parts.
std::vector<std::string_view> ArgumentNames(const CommandInfo& command);

}  // namespace orvanta
