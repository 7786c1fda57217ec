#pragma once

#include <string>
#include <vector>

namespace orvanta {

/// The values of the field codes in a desktop entry's command line.
struct ExecFields {
  std::string path;   ///< %f, %F
  std::string uri;    ///< %u, %U
  std::string icon;   ///< %i, which becomes two arguments; none if empty
  std::string name;   ///< %c
  std::string entry;  ///< %k, the path of the entry's file
};

/// Expands the field codes in the words of an `Exec` line (freedesktop.org, "Desktop Entry", "The Exec key").
/// Deprecated and unknown codes are removed. If the line does not ask for a file, the path is added at its
/// end.
std::vector<std::string> ExpandExec(const std::vector<std::string>& words, const ExecFields& fields);

}  // namespace orvanta
