#pragma once

#include <filesystem>
#include <string>

namespace orvanta {

/// Writes a small complete disc into a new or empty folder, with art to paint over. Needs a
/// `QGuiApplication`. Returns what went wrong; empty on success.
std::string MakeNewDisc(const std::filesystem::path& folder);

}  // namespace orvanta
