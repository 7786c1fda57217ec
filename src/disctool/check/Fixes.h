#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvanta {

class DiscProbe;
class DiscTree;

/// What can be mended in one configuration file because there is only one right answer: the encoding, line
/// breaks, keys that never count, and the case of file names.
struct FileFix {
  struct Line {
    int number = 0;                    ///< its number in the old file
    std::string before;                ///< UTF-8
    std::optional<std::string> after;  ///< nothing if the line is removed
  };
  std::string path;                ///< as `DiscTree` names it
  std::vector<std::string> notes;  ///< changes to the whole file, in the user's language
  std::vector<Line> lines;
  std::string bytes;    ///< the content of the mended file
  std::string problem;  ///< why the file cannot be mended; empty if it can
};

/// The files of a disc that can be mended.
std::vector<FileFix> PlanFixes(const DiscTree& disc, DiscProbe& probe);

/// The changes, as a diff.
std::string FixText(const DiscTree& disc, const FileFix& fix);

}  // namespace orvanta
