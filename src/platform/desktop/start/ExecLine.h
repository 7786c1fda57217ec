#pragma once

#include <string>
#include <vector>

namespace orvanta {

/// What the field codes of a desktop entry's command line stand for.
struct ExecFields {
  std::string path;   ///< %f, %F
  std::string uri;    ///< %u, %U
  std::string icon;   ///< %i, as two arguments; none if empty
  std::string name;   ///< %c
  std::string entry;  ///< %k, the path of the entry's file
};

/// Fills in the words of an entry's `Exec` line (freedesktop.org, "Desktop Entry", "The Exec
/// key"). Codes of older editions and unknown ones go. A line that asks for no file gets the path at its end.
std::vector<std::string> ExpandExec(const std::vector<std::string>& words, const ExecFields& fields);

}  // namespace orvanta
