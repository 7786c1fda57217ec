#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
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

/// The most important facts about a disc.
struct DiscInfo {
  struct Program {
    std::string entry;
    std::string file;  ///< as in Execute
    EntryTarget target;
    Runner runner;
  };

  std::string name;                     ///< as the user wrote it
  std::string title;                    ///< empty if the disc has none
  std::string label;                    ///< of the image's volume; empty if there is none
  std::int64_t oldest = 0, newest = 0;  ///< dates of files in seconds since 1970, UTC; 0 if unknown
  std::uintmax_t bytes = 0, files = 0;
  std::array<std::size_t, kNodeKinds> nodes{};  ///< by `NodeKind`
  std::vector<Program> programs;
  std::vector<int> audioTracks;  ///< their lengths in seconds
  std::size_t errors = 0, warnings = 0;
};

/// `searchPath` is written as in `$PATH`; the runners of programs are looked for there.
DiscInfo ReadDiscInfo(const DiscTree& disc, const Catalogue& catalogue, const Findings& findings,
                      std::string_view searchPath);

/// A heading with the name of the disc, and a line for each fact.
std::string InfoText(const DiscInfo& info);
/// Its fields, added to a line of JSON.
void AddInfo(JsonObject& line, const DiscInfo& info);

struct InfoOptions {
  bool json = false;
  bool hashes = false;       ///< a manifest of checksums instead; with `json` beside the rest
  std::string searchPath{};  ///< as in `$PATH`
  /// Asked for the lengths in seconds of an image's audio tracks; may be empty.
  std::function<std::vector<int>(const std::filesystem::path& disc)> audioTracks{};
};

/// The output of `info` for a disc.
DiscReport InfoReport(const DiscTree& disc, DiscProbe& probe, const InfoOptions& options);

}  // namespace orvanta
