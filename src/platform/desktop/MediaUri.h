#pragma once

#include <filesystem>
#include <string>

namespace orvanta {

/// The address under which GStreamer is to open `file`. Reads the file's first bytes.
/// Empty for a path that cannot be one.
std::string MediaUri(const std::filesystem::path& file);

}  // namespace orvanta
