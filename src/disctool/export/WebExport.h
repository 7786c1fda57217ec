#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "disctool/Progress.h"
#include "disctool/disc/DiscTree.h"

namespace orvanta {

/// What an export left undone; the rest of it is there.
struct ExportResult {
  std::vector<std::string> problems;  ///< "FILE: what", one for each file that could not be exported
  bool made = false;                  ///< false if there is no page at all
};

/// Makes a web page of a disc in `out`, a new or empty folder or one with an earlier export: the page and its
/// program from the folder `page`, the disc's files, and what browsers cannot play converted. An earlier
/// export's conversions are used again. With `singleFile`, `out` becomes one HTML file, for discs of at most
/// `kLargestSingleFile` bytes.
ExportResult ExportDisc(const DiscTree& disc, const std::filesystem::path& page,
                        const std::filesystem::path& out, bool singleFile, const Progress& progress);

inline constexpr std::uintmax_t kLargestSingleFile = 100'000'000;

/// Where the page's program was installed, beside the running program.
std::filesystem::path InstalledPage();

}  // namespace orvanta
