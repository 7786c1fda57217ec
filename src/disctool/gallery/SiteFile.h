#pragma once

#include <filesystem>
#include <string>

namespace orvanta {

/// The text of a style sheet or script that every gallery has: "gallery.css", "gallery.js" or "library.js".
std::string SiteFile(const char* name);

/// Replaces the file by `text`, whole or not at all. One that holds it already is not touched. Gives what
/// went wrong, empty if nothing did.
std::string WriteSiteFile(const std::filesystem::path& file, const std::string& text);

/// The whole text of a file; empty if it cannot be read.
std::string TextOfFile(const std::filesystem::path& file);

}  // namespace orvanta
