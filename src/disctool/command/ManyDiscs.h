#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "disctool/Progress.h"
#include "disctool/command/DiscCommands.h"

namespace orvanta {

/// How a command over many discs is run.
struct ManyDiscs {
  std::vector<std::string> discs;  ///< as the user named them
  bool json = false;               ///< a disc that could not be read gets a line on the standard output too
  unsigned workers = 1;            ///< how many discs are looked at together; all cores if 0
  std::ostream& out;
  std::ostream& err;
  ProgressBar* bar = nullptr;  ///< shows how many discs are done
  /// Asked several times a second: whether the user wants to end. What is done is written, and the discs that
  /// are being read get two seconds before the program ends.
  std::function<bool()> stop = [] { return false; };
};

/// Calls `ask` for every disc, on threads of its own, and writes what it says in the order of the discs. A
/// disc that cannot be read is reported, and the rest go on. What `ask` throws counts as such a problem.
ExitStatus ReportDiscs(const ManyDiscs& many, const std::function<DiscReport(const std::string& disc)>& ask);

/// The names in a list: one a line, or each ended by a NUL byte if there is one. Empty lines count for
/// nothing.
std::vector<std::string> NamesInList(std::string_view list);

}  // namespace orvanta
