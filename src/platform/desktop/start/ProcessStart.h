#pragma once

#include <string>
#include <vector>

namespace orvanta {

/// The environment of this process, `NAME=value` each.
std::vector<std::string> CurrentEnvironment();

/// Starts the program at the path `arguments[0]` and returns as soon as the system has loaded it.
///
/// Gives 0, or the error number (errno(3)) that kept it from being loaded. The program stands on its own: it
/// is no child of this process, leads a session of its own, has default signals and none blocked, and has
/// nothing of this process open. Its input is empty and its output goes nowhere (`/dev/null`), so that a pipe
/// or a log file that takes this process's output ends with this process. The current folder is this
/// process's.
int StartProcess(std::vector<std::string> arguments, std::vector<std::string> environment);

}  // namespace orvanta
