#pragma once

#include <filesystem>
#include <string>

namespace orvanta {

/// Runs the shell with a folder as its disc until the user leaves it. The arguments are Qt's to read. Gives
/// why it could not be run, empty if it could.
std::string RunShell(const std::filesystem::path& disc, int& argc, char** argv);

}  // namespace orvanta
