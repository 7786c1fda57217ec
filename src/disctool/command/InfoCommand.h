#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "disctool/JsonObject.h"
#include "disctool/check/Findings.h"
#include "disctool/command/ManyDiscs.h"
#include "disctool/disc/EntryTarget.h"
#include "disctool/disc/MenuTree.h"
#include "platform/Runner.h"

namespace orvanta {

/// A disc at a glance.
struct DiscInfo {
  struct Program {
    std::string entry;
    std::string file;  ///< as Execute names it
    EntryTarget target;
    Runner runner;
  };

  std::string name;                     ///< as its user gave it
  std::string title;                    ///< empty if the disc has none
  std::string label;                    ///< of an image's volume, empty without one
  std::int64_t oldest = 0, newest = 0;  ///< the files' dates, seconds since 1970 in UTC; 0 if unknown
  std::uintmax_t bytes = 0, files = 0;
  std::array<std::size_t, kNodeKinds> nodes{};  ///< by `NodeKind`
  std::vector<Program> programs;
  std::size_t errors = 0, warnings = 0;
};

/// `searchPath` is as in `$PATH`; there the programs' runners are looked for.
DiscInfo ReadDiscInfo(const DiscTree& disc, const Catalogue& catalogue, const Findings& findings,
                      std::string_view searchPath);

/// A heading with the disc's name and a line for each fact.
std::string InfoText(const DiscInfo& info);
/// Its fields, added to a line of JSON.
void AddInfo(JsonObject& line, const DiscInfo& info);

struct InfoOptions {
  bool json = false;
  bool hashes = false;       ///< a manifest of checksums instead; with `json` beside the rest
  std::string searchPath{};  ///< as in `$PATH`
};

/// What `info` says of a disc.
DiscReport InfoReport(const DiscTree& disc, DiscProbe& probe, const InfoOptions& options);

}  // namespace orvanta
