#pragma once

#include <filesystem>

namespace orvanta {

/// The folder of the sources of this project.
std::filesystem::path ProjectFolder();

}  // namespace orvanta
