#include "disctool/image/volume/OpenImage.h"

#include "disctool/Translation.h"
#include "disctool/image/sectors/ReadTracks.h"

namespace orvanta {

std::unique_ptr<const Volume> OpenVolume(const std::filesystem::path& image, std::string& problem,
                                         std::string* state) {
  const TrackList list = ReadTracks(image);
  problem = list.problem;
  if (!problem.empty()) return nullptr;
  auto session = FindSession(list);
  std::unique_ptr<const Volume> volume = session ? Volume::Open(std::move(*session)) : nullptr;
  if (!volume) problem = image.string() + ": " + Translated("no track of the image has a file system");
  if (!volume || !state) return volume;
  *state = volume->Id();
  for (const Track& track : list.tracks)
    if (track.bytes) *state += track.bytes->State();
  return volume;
}

std::unique_ptr<DiscTree> OpenImage(const std::filesystem::path& image, std::string& problem) {
  std::unique_ptr<const Volume> volume = OpenVolume(image, problem);
  return volume ? std::make_unique<ImageTree>(image, std::move(volume)) : nullptr;
}

}  // namespace orvanta
