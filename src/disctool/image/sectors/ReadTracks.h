#pragma once

#include <filesystem>

#include "disctool/image/sectors/Track.h"

namespace orvanta {

/// Finds the tracks of an image: of a plain ISO, or of a BIN, IMG or MDF whose sectors are whole, the one
/// track that it begins with.
TrackList ReadTracks(const std::filesystem::path& image);

}  // namespace orvanta
