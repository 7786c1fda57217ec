#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "disctool/command/Arguments.h"

namespace orvanta {

/// Runs the shell with a folder as its disc until the user leaves it. The folder becomes the current one, so
/// that programs find files without a drive as they would on a drive. Qt reads the arguments. Returns why the
/// shell could not run; empty on success. Without a `zoom` the screen decides.
std::string RunShell(const std::filesystem::path& disc, std::optional<int> zoom, int& argc, char** argv);

/// Whether a terminal or another program reads the standard error. That is not so if a user opens a disc in a
/// file manager.
bool ErrorsAreRead();

/// Opens a folder or an image for a user of a file manager: a window shows the progress if unpacking an image
/// takes time, and another one why a disc could not be opened. Returns that reason too; empty on success.
std::string OpenInWindows(const Request& request, int& argc, char** argv);

}  // namespace orvanta
