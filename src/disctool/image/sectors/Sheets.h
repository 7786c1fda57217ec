#pragma once

#include <filesystem>
#include <string_view>

#include "disctool/image/sectors/Track.h"

namespace orvanta {

// The sheets that say where the tracks of an image lie. Facts of the formats are from psx-spx, "CDROM Disk
// Images", which gathers what is known of them; none but the CUE sheet was ever published. An audio track
// whose file is missing or compressed has no bytes; without any data track that can be read, `problem` says
// why.

/// A CUE sheet (CDRWIN User's Guide, appendix A), with any number of files. Sessions are those of `REM
/// SESSION`.
TrackList ReadCueSheet(const std::filesystem::path& sheet, std::string_view text);

/// The CCD file of CloneCD; the data file is the IMG beside it.
TrackList ReadCloneSheet(const std::filesystem::path& sheet, std::string_view text);

/// The MDS file of Alcohol 120%.
TrackList ReadAlcoholSheet(const std::filesystem::path& sheet, std::string_view content);

/// Whether a file ends as images of Nero do.
bool IsNeroImage(const ByteSource& bytes);
/// The NRG file of Nero, version 1 or 2, which has its sheet at its end. No tracks if that is damaged.
TrackList ReadNeroImage(const Bytes& bytes);

}  // namespace orvanta
