#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "disctool/command/Arguments.h"

namespace orvanta {

/// Runs the shell with a folder as its disc until the user leaves it. That folder becomes the current one, so
/// that programs find files without a drive as they do from a drive's root. The arguments are Qt's to read.
/// Gives why it could not be run, empty if it could. Without a `zoom` the screen decides.
std::string RunShell(const std::filesystem::path& disc, std::optional<int> zoom, int& argc, char** argv);

/// Whether somebody reads what is written to the standard error: a terminal or another program. Who opens a
/// disc from a file manager does not.
bool ErrorsAreRead();

/// Opens a folder or an image for such a user: a window shows how an image is unpacked, if that takes its
/// time, and another one why a disc could not be opened. Gives that too, empty if it could.
std::string OpenInWindows(const Request& request, int& argc, char** argv);

}  // namespace orvanta
