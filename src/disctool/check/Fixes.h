#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvanta {

class DiscProbe;
class DiscTree;

/// What has one right answer in one configuration file: the encoding, the ends of lines, keys that never
/// count, and the capitals in the names of files.
struct FileFix {
  struct Line {
    int number = 0;                    ///< in the file as it was
    std::string before;                ///< UTF-8
    std::optional<std::string> after;  ///< nothing for a line that goes
  };
  std::string path;                ///< as `DiscTree` names it
  std::vector<std::string> notes;  ///< what happens to the whole file, in the user's language
  std::vector<Line> lines;
  std::string bytes;    ///< the mended file
  std::string problem;  ///< why the file stays as it is; empty if it can be mended
};

/// The files of a disc that can be mended.
std::vector<FileFix> PlanFixes(const DiscTree& disc, DiscProbe& probe);

/// What changes, as a diff.
std::string FixText(const DiscTree& disc, const FileFix& fix);

}  // namespace orvanta
