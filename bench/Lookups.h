#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::bench {

/// The physical limit of a lookup that has to see the whole file: opens it, reads it into a warm buffer and
/// scans it once with memchr.
class WarmRead {
 public:
  /// Returns the number of bytes; negative if the file could not be read.
  long operator()(const std::filesystem::path& file);

 private:
  std::vector<char> buffer_ = std::vector<char>(4 << 20);
};

/// What one would write in ten minutes: std::getline on a std::ifstream.
std::string GetlineLookup(const std::filesystem::path& file, std::string_view section, std::string_view key);

/// GLib's GKeyFile, which parses the whole file and accepts only UTF-8.
std::string GlibLookup(const std::filesystem::path& file, std::string_view section, std::string_view key);

}  // namespace orvanta::bench
