#pragma once

#include "disctool/command/Arguments.h"

namespace orvanta {

// The commands that read any number of discs and report what they find. Each returns its exit status.

int RunInfo(const Request& request, int& argc, char** argv);
int RunCheck(const Request& request, int& argc, char** argv);
int RunTree(const Request& request, int& argc, char** argv);
int RunFind(const Request& request, int& argc, char** argv);
/// Compares two discs.
int RunDiff(const Request& request, int& argc, char** argv);

}  // namespace orvanta
