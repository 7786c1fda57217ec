#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// Splits an entry's parameters into arguments as the C run-time library of Windows programs does
/// (learn.microsoft.com, "Parsing C command-line arguments", rules since 2008), so that a native program gets
/// the arguments that a Windows program would get.
///
/// Blanks and tabs separate arguments, except between double quotes, where two double quotes stand for one.
/// Backslashes are literal unless a double quote follows: then each pair stands for one backslash, and an odd
/// one makes the quote literal. A quote that is not closed extends to the end. `""` is an empty argument.
std::vector<std::string> SplitArguments(std::string_view parameters);

}  // namespace orvanta
