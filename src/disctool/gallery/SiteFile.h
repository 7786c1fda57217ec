#pragma once

#include <filesystem>
#include <string>

namespace orvanta {

/// The text of a style sheet or script that all galleries share: "gallery.css", "gallery.js" or "library.js".
std::string SiteFile(const char* name);

/// Replaces the content of the file by `text`, completely or not at all. A file that has this content already
/// is not touched. Returns what went wrong; empty on success.
std::string WriteSiteFile(const std::filesystem::path& file, const std::string& text);

/// The whole text of a file; empty if it cannot be read.
std::string TextOfFile(const std::filesystem::path& file);

}  // namespace orvanta
