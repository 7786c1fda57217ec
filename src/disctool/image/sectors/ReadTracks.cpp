#include "disctool/image/sectors/ReadTracks.h"

#include "disctool/Translation.h"
#include "disctool/image/sectors/DataSectors.h"

namespace orvanta {

TrackList ReadTracks(const std::filesystem::path& image) {
  TrackList list;
  Track track;
  track.bytes = OpenBytes(image, list.problem);
  if (!track.bytes) return list;
  const auto layout = FindLayout(*track.bytes, 0, kBlock);
  if (!layout) {
    list.problem = image.string() + ": " + Translated("this is not an image of a disc");
    return list;
  }
  track.sectorSize = layout->stride;
  track.sectors = (track.bytes->Size() + layout->stride - 1) / layout->stride;
  list.tracks.push_back(std::move(track));
  return list;
}

}  // namespace orvanta
