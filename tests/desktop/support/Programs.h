#pragma once

#include <string>

namespace orvanta {

/// The paths of the programs under test.
std::string ShellProgram();
std::string DiscToolProgram();
/// A program that shows a window and does nothing else, as the yardstick of a start.
std::string BareWindowProgram();

}  // namespace orvanta
