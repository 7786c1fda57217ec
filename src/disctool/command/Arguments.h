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

/// What the user has asked for.
struct Request {
  const CommandInfo* command = nullptr;  ///< null if there are only options such as --help or --version
  std::vector<std::string> words;        ///< the arguments after the command
  std::map<std::string, std::string, std::less<>> options;  ///< without dashes, with their values
  std::string problem;                                      ///< why it cannot be done; empty if it can

  bool Has(std::string_view option) const { return options.contains(option); }
  /// The value of an option; empty if it is not given.
  std::string Option(std::string_view option) const;
  /// None for `auto`, or if the option is not given.
  std::optional<int> Zoom() const;
  /// The value of --cache-limit in bytes; nothing without the option.
  std::optional<std::uintmax_t> CacheLimit() const;
};

/// Parses the arguments of the tool, without its own name, according to the table of commands. Options and
/// arguments may come in any order; "--" ends the options.
Request ParseArguments(std::span<const std::string> arguments);

/// The options of the tool itself.
std::span<const OptionInfo> GeneralOptions();

/// The single names in a text such as "DISC OUT".
std::vector<std::string_view> ArgumentNames(const CommandInfo& command);

}  // namespace orvanta
