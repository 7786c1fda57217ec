#include "disctool/image/sectors/AudioTracks.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>

#include "disctool/Translation.h"
#include "disctool/image/sectors/ReadTracks.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

std::string Low(std::uint64_t number, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i, number >>= 8) text += static_cast<char>(number & 0xFF);
  return text;
}

/// The header of a WAV file with so many bytes of samples as they are on a disc: 44,100 a second, 16 bits,
/// stereo.
std::string WaveHeader(std::uint64_t bytes) {
  constexpr std::uint64_t kRate = 44100, kFrame = 4, kPcm = 1, kHeader = 36;
  return "RIFF" + Low(kHeader + bytes, 4) + "WAVEfmt " + Low(16, 4) + Low(kPcm, 2) + Low(2, 2) +
         Low(kRate, 4) + Low(kRate * kFrame, 4) + Low(kFrame, 2) + Low(16, 2) + "data" + Low(bytes, 4);
}

/// The samples of a sector, low byte first; fewer at the end of the file.
std::string SamplesOf(const Track& track, std::uint64_t sector) {
  std::string samples = track.bytes->Text(track.begin + sector * track.sectorSize, kRawSector);
  if (track.swapped)
    for (std::size_t i = 0; i + 1 < samples.size(); i += 2) std::swap(samples[i], samples[i + 1]);
  return samples;
}

/// Where an interrupted run leaves what it has written so far.
fs::path PartOf(fs::path file) { return file += ".part"; }

std::string WriteTrack(const Track& track, const fs::path& file, const Progress& progress,
                       std::uint64_t& done, std::uint64_t all) {
  std::ofstream out(PartOf(file), std::ios::binary);
  out << WaveHeader(track.sectors * kRawSector);
  for (std::uint64_t sector = 0; sector < track.sectors && out; ++sector) {
    std::string samples = SamplesOf(track, sector);
    // What a damaged image lacks is silence.
    samples.resize(kRawSector);
    out << samples;
    progress(++done, all);
  }
  out.close();
  std::error_code error;
  if (out) fs::rename(PartOf(file), file, error);
  if (out && !error) return {};
  const std::string why = error ? error.message() : std::strerror(errno);
  fs::remove(PartOf(file), error);
  return file.string() + ": " + why;
}

}  // namespace

TrackList AudioTracksOf(const fs::path& disc) {
  std::error_code error;
  if (!fs::is_regular_file(disc, error)) return {};
  TrackList list = ReadTracks(disc);
  std::erase_if(list.tracks, [](const Track& track) { return !track.audio; });
  list.problem.clear();
  return list;
}

std::string WriteAudioTracks(const fs::path& disc, const fs::path& folder, const Progress& progress) {
  const TrackList list = AudioTracksOf(disc);
  if (list.tracks.empty()) return disc.string() + ": " + Translated("there are no audio tracks here");
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) return folder.string() + ": " + error.message();
  std::uint64_t done = 0, all = 0;
  for (const Track& track : list.tracks) all += track.sectors;
  for (const Track& track : list.tracks) {
    const std::string number = std::to_string(track.number);
    const fs::path file = folder / ("track-" + std::string(number.size() < 2 ? "0" : "") + number + ".wav");
    if (!track.bytes)
      return file.string() + ": " + Translated("the file of this track is missing or compressed");
    if (fs::exists(file, error)) {
      done += track.sectors;
    } else if (std::string problem = WriteTrack(track, file, progress, done, all); !problem.empty()) {
      return problem;
    }
  }
  return {};
}

}  // namespace orvanta
