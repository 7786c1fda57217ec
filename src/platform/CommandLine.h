#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// Splits an entry's parameters into arguments the way the C run-time of Windows programs does
/// (learn.microsoft.com, "Parsing C command-line arguments", rules since 2008), so that a native program gets
/// what a Windows program would have got.
///
/// Blanks and tabs separate. A double quote opens and closes a stretch in which they do not; inside it two
/// double quotes stand for one. Backslashes are literal unless a double quote follows: then each pair stands
/// for one backslash, and an odd one makes the quote literal. A quote left open runs to the end. `""` is an
/// empty argument.
std::vector<std::string> SplitArguments(std::string_view parameters);

}  // namespace orvanta
