#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

namespace orvanta {

class DiscProbe;
class DiscTree;

/// The exit status of a command. A command for many discs may return the sum of `kFaults` and `kUnread`.
enum ExitStatus : int {
  kGood = 0,
  kFaults = 1,  ///< something is wrong with a disc, or nothing was found
  kMisuse = 2,
  kUnread = 4,        ///< a disc could not be read
  kInterrupted = 130  ///< as a shell gives it for a program that was interrupted
};

/// The result of a command for one disc.
struct DiscReport {
  std::string text{};     ///< for the standard output
  std::string problem{};  ///< why the disc could not be read; empty if it could
  bool faults = false;    ///< something is wrong with the disc, or nothing was found on it
};

struct CheckOptions {
  bool json = false;
  bool strict = false;  ///< warnings count as faults
  bool deep = false;    ///< decode sounds and films whole
  bool sarif = false;   ///< write lines for `SarifLog`
};

/// The report of everything that is wrong with a disc. Faults if there is an error.
DiscReport CheckReport(const DiscTree& disc, DiscProbe& probe, const CheckOptions& options);
/// The menu tree of a disc; with `heading`, the name of the disc is put above it.
DiscReport TreeReport(const DiscTree& disc, bool json, bool heading);
/// Writes the value of a key as the shell finds it. Faults if it is empty or missing.
ExitStatus GetCommand(const DiscTree& disc, std::string_view section, std::string_view key,
                      std::ostream& out);

}  // namespace orvanta
