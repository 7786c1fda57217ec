#pragma once

#include <filesystem>
#include <string>

namespace orvanta {

/// Writes a small complete disc into a new or empty folder, with art to paint over. Needs a
/// `QGuiApplication`. Gives what went wrong, empty if nothing did.
std::string MakeNewDisc(const std::filesystem::path& folder);

}  // namespace orvanta
