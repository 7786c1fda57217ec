#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "disctool/image/sectors/ByteSource.h"

namespace orvanta {

/// A second of a disc has so many sectors, and before the first one lie two seconds that no image needs to
/// have (ECMA-130, 22.3).
inline constexpr std::uint32_t kSectorsPerSecond = 75;
inline constexpr std::uint32_t kPregap = 150;
/// The bytes of a whole sector, which are 588 stereo samples of 16 bits in an audio track (ECMA-130, 14).
inline constexpr std::uint32_t kRawSector = 2352;

/// A track of a disc and where it lies in a file.
struct Track {
  int number = 1;
  int session = 1;
  bool audio = false;
  Bytes bytes;
  std::uint64_t begin = 0;                ///< place of its first sector in `bytes`
  std::uint32_t sectorSize = kRawSector;  ///< bytes from a sector to the next
  std::uint64_t sectors = 0;              ///< its length
  std::int64_t address = 0;               ///< of its first sector on the disc
  bool swapped = false;                   ///< the high byte of a sample comes first
};

/// The tracks of an image in their order.
struct TrackList {
  std::vector<Track> tracks;
  std::string problem;  ///< why there are none; empty if there are
};

}  // namespace orvanta
