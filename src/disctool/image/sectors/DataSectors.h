#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "disctool/image/sectors/Track.h"

namespace orvanta {

/// The bytes of a sector that a file system sees.
inline constexpr std::uint32_t kBlock = 2048;

/// How the sectors of a data track lie in a file, in bytes.
struct SectorLayout {
  std::uint64_t begin = 0;        ///< place of the first sector
  std::uint32_t stride = kBlock;  ///< from a sector to the next
  std::uint32_t userData = 0;     ///< from a sector to its 2048 bytes for the file system
};

/// The data sectors of a disc by their addresses, 2048 bytes each, wherever they come from.
class DataSectors {
 public:
  /// Sectors of one track, in a row.
  struct Run {
    std::uint64_t first = 0;  ///< address on the disc
    std::uint64_t count = 0;
    SectorLayout layout;
    Bytes bytes;
  };

  std::vector<Run> runs;

  /// Reads from the place `at` on, in bytes of data from address 0. Gives how many bytes that were: fewer
  /// than asked for where no sector is, and where the image ends or is damaged.
  std::size_t Read(std::uint64_t at, std::span<char> into) const;
  /// Up to `most` bytes. Memory grows with what is there.
  std::string Text(std::uint64_t at, std::uint64_t most) const;
};

/// The data of a disc and the session that a drive shows.
struct SessionData {
  DataSectors sectors;
  std::size_t run = 0;  ///< the one that the session's file system begins with
};

/// Finds the sectors in a file that begin at `begin`: tries the sizes in which images are kept, the place of
/// the data in a sector (mode 1, mode 2 form 1, with and without synchronisation and header), and two seconds
/// before the first sector, until the 17th has a volume descriptor (ECMA-119, 6.7.1). `stride` is tried
/// first; 0 if nothing is known of it.
std::optional<SectorLayout> FindLayout(const ByteSource& bytes, std::uint64_t begin, std::uint32_t stride);

/// The data of the last session that has any, as a drive shows it, with that of all earlier ones, which it
/// may refer to. Nothing if no track has a volume descriptor.
std::optional<SessionData> FindSession(const TrackList& image);

}  // namespace orvanta
