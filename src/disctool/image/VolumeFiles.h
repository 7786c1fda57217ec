#pragma once

#include <filesystem>

namespace orvanta {

/// Puts the label and the serial number of an image into its unpacked copy, where Wine and DOSBox find them
/// for the disc's programs (platform/VolumeFiles.h). Does nothing if `disc` is not an image but a folder: it
/// is the user's own. Files of these names that the copy already has stay as they are.
void WriteVolumeFiles(const std::filesystem::path& disc, const std::filesystem::path& copy);

}  // namespace orvanta
