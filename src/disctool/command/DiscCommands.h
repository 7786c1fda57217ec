#pragma once

#include <iosfwd>
#include <string_view>

namespace orvanta {

class DiscProbe;
class DiscTree;

/// What a command of the tool ends with.
enum ExitStatus : int { kGood = 0, kFaults = 1, kMisuse = 2 };

struct CheckOptions {
  bool json = false;
  bool strict = false;  ///< warnings count as faults
};

/// Writes everything that is wrong with a disc. Faults if there is an error.
ExitStatus CheckCommand(const DiscTree& disc, DiscProbe& probe, const CheckOptions& options,
                        std::ostream& out);
/// Writes the menu tree. Faults if there is no disc.
ExitStatus TreeCommand(const DiscTree& disc, bool json, std::ostream& out, std::ostream& err);
/// Writes the value of a key as the shell looks it up. Faults if it is empty or missing.
ExitStatus GetCommand(const DiscTree& disc, std::string_view section, std::string_view key,
                      std::ostream& out);

}  // namespace orvanta
