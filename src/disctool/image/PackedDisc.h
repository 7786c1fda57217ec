#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "disctool/Progress.h"

namespace orvanta {

/// A disc has thousands of files; one with more than this is malicious.
inline constexpr std::uintmax_t kMostPackedFiles = 1'000'000;

/// What a packed disc contains, as found before anything is written.
struct PackedContents {
  std::uintmax_t bytes = 0;
  std::uintmax_t files = 0;
  std::string problem;  ///< why it cannot be unpacked; empty if it can
};

/// A disc that must be unpacked before programs can run from it: an image, or an archive with a disc in it.
class PackedDisc {
 public:
  virtual ~PackedDisc() = default;
  /// A text that changes when the content does.
  virtual std::string State() const = 0;
  virtual PackedContents Contents() const = 0;
  /// Unpacks it into an empty folder. Every file can be written, and has the date that it has on the disc.
  /// Returns what went wrong; empty on success. After a failure the content of the folder is undefined.
  virtual std::string Unpack(const std::filesystem::path& folder, const PackedContents& contents,
                             const Progress& progress) const = 0;
  /// Puts back what was lost or changed in an unpacked copy, by size and date; leaves alone what was added.
  /// Returns what went wrong.
  virtual std::string Restore(const std::filesystem::path& folder) const = 0;
  /// Whether a disc must still be found among the files.
  virtual bool IsArchive() const { return false; }
};

/// Opens what a user has named. Null if it cannot be unpacked; `problem` then says why, the name first.
std::unique_ptr<PackedDisc> OpenPackedDisc(const std::filesystem::path& disc, std::string& problem);

}  // namespace orvanta
