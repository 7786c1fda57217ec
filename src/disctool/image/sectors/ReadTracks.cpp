#include "disctool/image/sectors/ReadTracks.h"

#include "config/Windows1250.h"
#include "disctool/image/sectors/DataSectors.h"
#include "disctool/image/sectors/KnownFile.h"
#include "disctool/image/sectors/Sheets.h"

namespace orvanta {
namespace {

/// A sheet is a few kilobytes long.
constexpr std::uint64_t kLargestSheet = 4 * 1024 * 1024;

/// The one track that a file without a sheet begins with; none if that is not one of data.
TrackList OneTrack(const std::filesystem::path& image, const Bytes& bytes) {
  const auto layout = FindLayout(*bytes, 0, kBlock);
  if (!layout) return {{}, image.string() + ": " + WhyNoImage(*bytes)};
  Track track{1, 1, false, bytes, 0, layout->stride};
  track.sectors = (bytes->Size() + layout->stride - 1) / layout->stride;
  return {{std::move(track)}, {}};
}

}  // namespace

TrackList ReadTracks(const std::filesystem::path& image) {
  TrackList list;
  const Bytes bytes = OpenBytes(image, list.problem);
  if (!bytes) return list;
  const std::string begin = bytes->Text(0, 16);
  const auto sheet = [&] { return bytes->Text(0, kLargestSheet); };
  if (begin == "MEDIA DESCRIPTOR") return ReadAlcoholSheet(image, sheet());
  if (EqualNoCase(begin.substr(0, 9), "[CloneCD]")) return ReadCloneSheet(image, sheet());
  if (EqualNoCase(image.extension().string(), ".cue")) return ReadCueSheet(image, sheet());
  if (IsNeroImage(*bytes)) list = ReadNeroImage(bytes);
  return list.tracks.empty() ? OneTrack(image, bytes) : list;
}

}  // namespace orvanta
