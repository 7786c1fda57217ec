#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::bench {

/// The physical limit of any lookup that has to see the whole file: opens it, reads it into a warm buffer and
/// passes over it once with memchr.
class WarmRead {
 public:
  /// Gives the number of bytes, negative if the file could not be read.
  long operator()(const std::filesystem::path& file);

 private:
  std::vector<char> buffer_ = std::vector<char>(4 << 20);
};

/// What one writes in ten minutes: std::getline over a std::ifstream.
std::string GetlineLookup(const std::filesystem::path& file, std::string_view section, std::string_view key);

/// GLib's GKeyFile, which parses the whole file. It takes UTF-8 alone.
std::string GlibLookup(const std::filesystem::path& file, std::string_view section, std::string_view key);

}  // namespace orvanta::bench
