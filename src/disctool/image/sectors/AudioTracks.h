#pragma once

#include <filesystem>
#include <string>

#include "disctool/Progress.h"
#include "disctool/image/sectors/Track.h"

namespace orvanta {

/// The audio tracks of an image, in their order; `sectors / kSectorsPerSecond` is their length in seconds.
/// None for what is not an image with a sheet. `problem` is empty even then: most discs have no audio tracks.
TrackList AudioTracksOf(const std::filesystem::path& disc);

/// Writes each audio track of an image as "track-02.wav" and so on into a folder, which is made if it is not
/// there. A file that is there already is kept. Returns what went wrong, or that there are no audio tracks;
/// empty on success.
std::string WriteAudioTracks(const std::filesystem::path& disc, const std::filesystem::path& folder,
                             const Progress& progress);

}  // namespace orvanta
