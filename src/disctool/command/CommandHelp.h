#pragma once

#include <string>
#include <string_view>

#include "disctool/command/CommandTable.h"

namespace orvanta {

// All of these texts are made from the table of commands, in the user's language.

/// The output of `--help`.
std::string HelpText();
/// The output of `COMMAND --help`.
std::string HelpText(const CommandInfo& command);

/// The manual page (groff_man) of a command, or of the tool if `name` is "orvanta-disc"; empty for any other
/// name.
std::string ManPage(std::string_view name, std::string_view version);

/// The completion script for bash, zsh or fish; empty for any other shell.
std::string Completion(std::string_view shell);

}  // namespace orvanta
