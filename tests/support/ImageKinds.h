#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "support/TemporaryFolder.h"

namespace orvanta::test {

/// An audio track of so many sectors, no two alike.
std::string AudioTrack(std::size_t sectors);

/// Writes a disc with `iso` as its data track, and `audio` as its second track where the kind can have one,
/// as an image of every kind that is read in place. Gives the file to name for each.
std::map<std::string, std::filesystem::path> WriteImages(const TemporaryFolder& folder,
                                                         const std::string& iso, const std::string& audio);

/// The header of a WAV file in the quality of a CD, and its samples.
std::string WaveFile(const std::string& samples);

}  // namespace orvanta::test
