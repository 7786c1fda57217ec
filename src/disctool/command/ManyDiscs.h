#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "disctool/Progress.h"
#include "disctool/command/DiscCommands.h"

namespace orvanta {

/// How a command runs for many discs.
struct ManyDiscs {
  std::vector<std::string> discs;  ///< as the user wrote them
  bool json = false;               ///< a disc that could not be read also gets a line on the standard output
  unsigned workers = 1;            ///< how many discs are read at the same time; 0 means one per core
  std::ostream& out;
  std::ostream& err;
  ProgressBar* bar = nullptr;  ///< shows how many discs are done
  /// Asked several times a second: whether the user wants to end. What is done is written, and the discs that
  /// are being read get two seconds before the program ends.
  std::function<bool()> stop = [] { return false; };
};

/// Calls `ask` for every disc, on separate threads, and writes the reports in the order of the discs. A disc
/// that cannot be read is reported, and the others are still read. An exception from `ask` counts as such a
/// problem.
ExitStatus ReportDiscs(const ManyDiscs& many, const std::function<DiscReport(const std::string& disc)>& ask);

/// The names in a list: one per line or, if it contains a NUL byte, each followed by NUL. Empty lines are
/// ignored.
std::vector<std::string> NamesInList(std::string_view list);

}  // namespace orvanta
