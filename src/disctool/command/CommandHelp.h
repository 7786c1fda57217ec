#pragma once

#include <string>
#include <string_view>

#include "disctool/command/CommandTable.h"

namespace orvanta {

// All of these are made from the table of commands, in the user's language.

/// What `--help` writes.
std::string HelpText();
/// What `COMMAND --help` writes.
std::string HelpText(const CommandInfo& command);

/// A manual page (groff_man) of a command, or of the tool if `name` is "orvanta-disc"; empty for other names.
std::string ManPage(std::string_view name, std::string_view version);

/// The completions for bash, zsh or fish; empty for other shells.
std::string Completion(std::string_view shell);

}  // namespace orvanta
