#pragma once

#include <filesystem>

#include "disctool/image/sectors/Track.h"

namespace orvanta {

/// Finds the tracks of an image. The user names its sheet (CUE, CCD or MDS), an NRG, which has its sheet
/// inside, or any file that begins with a data track: a plain ISO, a BIN, IMG or MDF without its sheet, or a
/// device.
TrackList ReadTracks(const std::filesystem::path& image);

}  // namespace orvanta
