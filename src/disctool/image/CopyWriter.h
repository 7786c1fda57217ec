#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

#include "disctool/Progress.h"
#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// Writes the files of an unpacked copy. Each function returns what went wrong; empty on success.
class CopyWriter {
 public:
  /// `all` is how many bytes will be written, and no more than that is.
  CopyWriter(std::uintmax_t all, const Progress& progress) : all_(all), progress_(progress) {}

  /// Begins a file that must not exist yet.
  std::string Begin(const std::filesystem::path& file, bool executable);
  std::string Write(std::span<const char> part);
  /// Completes it; `modified` is in seconds since 1970 in UTC.
  std::string End(std::int64_t modified);

 private:
  const std::uintmax_t all_;
  const Progress& progress_;
  std::uintmax_t written_ = 0;
  std::filesystem::path path_;
  Descriptor file_;
};

/// Whether a path holds a regular file, and no link, of this size and date.
bool IsAsUnpacked(const std::filesystem::path& file, std::uintmax_t size, std::int64_t modified);

/// Makes a folder unless it is there; anything else in its place, even a link, is removed.
std::string EnsureFolder(const std::filesystem::path& folder);

/// Path and reason of the last failure of the system.
std::string SystemProblem(const std::filesystem::path& path);

}  // namespace orvanta
