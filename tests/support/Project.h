#pragma once

#include <filesystem>

namespace orvanta {

/// The folder of the project's sources.
std::filesystem::path ProjectFolder();

}  // namespace orvanta
