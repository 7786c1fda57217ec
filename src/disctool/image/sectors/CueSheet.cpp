#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <vector>

#include "config/Windows1250.h"
#include "disctool/Translation.h"
#include "disctool/image/sectors/Fields.h"
#include "disctool/image/sectors/SheetFile.h"
#include "disctool/image/sectors/Sheets.h"

namespace orvanta {
namespace {

/// Sectors between the end of a session and the beginning of the next, which no image has: lead-out, lead-in
/// and pregap, the first lead-out longer than the others (ECMA-394, 20 to 22).
constexpr std::uint64_t kFirstSessionGap = 11400, kSessionGap = 6900;

/// What the sheet says of a track. Times are in sectors of its file.
struct CueTrack {
  Track track;
  std::optional<std::uint64_t> index0, index1;
  std::uint64_t pregap = 0;  ///< before it on the disc, but not in the file

  std::uint64_t First() const { return index0.value_or(index1.value_or(0)); }
};

struct CueFile {
  std::string name, type;
  std::vector<CueTrack> tracks;
};

/// The words of a line; one in quotes may have blanks.
std::vector<std::string_view> WordsOf(std::string_view line) {
  std::vector<std::string_view> words;
  constexpr std::string_view kBlanks = " \t\r";
  while (true) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    if (line.empty()) return words;
    const bool quoted = line.front() == '"';
    if (quoted) line.remove_prefix(1);
    const std::size_t length = std::min(quoted ? line.find('"') : line.find_first_of(kBlanks), line.size());
    words.push_back(line.substr(0, length));
    line.remove_prefix(std::min(length + (quoted ? 1 : 0), line.size()));
  }
}

std::uint64_t NumberOf(std::string_view text) {
  std::uint32_t number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// "MM:SS:FF" in sectors.
std::uint64_t TimeOf(std::string_view text) {
  const auto colon = std::min(text.find(':'), text.size());
  const std::string_view rest = text.substr(std::min(colon + 1, text.size()));
  const auto second = std::min(rest.find(':'), rest.size());
  return (NumberOf(text.substr(0, colon)) * 60 + NumberOf(rest.substr(0, second))) * kSectorsPerSecond +
         NumberOf(rest.substr(std::min(second + 1, rest.size())));
}

/// "AUDIO", "CDG", or a mode and the size of its sectors: "MODE1/2352".
std::uint32_t SectorSizeOf(std::string_view mode) {
  constexpr std::uint64_t kLargest = kRawSector + 96;
  if (EqualNoCase(mode, "CDG")) return kLargest;
  const auto slash = mode.find('/');
  if (slash == mode.npos) return kRawSector;
  const std::uint64_t size = NumberOf(mode.substr(slash + 1));
  return size >= 2048 && size <= kLargest ? static_cast<std::uint32_t>(size) : kRawSector;
}

std::vector<CueFile> Parse(std::string_view text) {
  std::vector<CueFile> files;
  int session = 1;
  while (!text.empty()) {
    const auto length = std::min(text.find('\n'), text.size());
    const auto words = WordsOf(text.substr(0, length));
    text.remove_prefix(std::min(length + 1, text.size()));
    const auto is = [&](std::string_view command, std::size_t count) {
      return words.size() >= count && EqualNoCase(words[0], command);
    };
    if (is("REM", 3) && EqualNoCase(words[1], "SESSION"))
      session = static_cast<int>(NumberOf(words[2]) % 100);
    if (is("FILE", 2)) files.push_back({std::string(words[1]), std::string(words.back()), {}});
    if (files.empty()) continue;
    if (is("TRACK", 3)) {
      CueTrack& added = files.back().tracks.emplace_back();
      added.track.number = static_cast<int>(NumberOf(words[1]) % 100);
      added.track.session = session;
      added.track.audio = EqualNoCase(words[2], "AUDIO") || EqualNoCase(words[2], "CDG");
      added.track.sectorSize = SectorSizeOf(words[2]);
    }
    if (files.back().tracks.empty()) continue;
    CueTrack& track = files.back().tracks.back();
    if (is("PREGAP", 2)) track.pregap = TimeOf(words[1]);
    if (is("INDEX", 3) && NumberOf(words[1]) == 0) track.index0 = TimeOf(words[2]);
    if (is("INDEX", 3) && NumberOf(words[1]) == 1) track.index1 = TimeOf(words[2]);
  }
  return files;
}

/// Where the samples of a WAV file lie; nothing if there are none as they stand on a disc.
std::optional<std::uint64_t> SamplesOf(const ByteSource& wave) {
  constexpr std::uint64_t kMostChunks = 100;
  if (wave.Text(0, 4) != "RIFF" || wave.Text(8, 4) != "WAVE") return std::nullopt;
  std::uint64_t at = 12;
  for (std::uint64_t i = 0; i < kMostChunks; ++i) {
    const std::string chunk = wave.Text(at, 24);
    if (chunk.starts_with("data")) return at + 8;
    const bool cdQuality = LittleEndian(chunk, 8, 2) == 1 && LittleEndian(chunk, 10, 2) == 2 &&
                           LittleEndian(chunk, 12, 4) == 44100 && LittleEndian(chunk, 22, 2) == 16;
    if (chunk.size() < 24 || (chunk.starts_with("fmt ") && !cdQuality)) return std::nullopt;
    at += 8 + LittleEndian(chunk, 4, 4) + LittleEndian(chunk, 4, 4) % 2;
  }
  return std::nullopt;
}

class Layout {
 public:
  explicit Layout(const std::filesystem::path& sheet) : sheet_(sheet) {}

  void Add(CueFile& file) {
    std::string problem;
    const Bytes bytes = OpenSheetFile(sheet_, file.name, problem);
    if (!bytes && missing_.empty()) missing_ = problem;
    std::optional<std::uint64_t> begin = 0;
    const bool wave = EqualNoCase(file.type, "WAVE"), swapped = EqualNoCase(file.type, "MOTOROLA");
    if (bytes && wave) begin = SamplesOf(*bytes);
    if (EqualNoCase(file.type, "MP3") || EqualNoCase(file.type, "AIFF")) begin.reset();
    std::uint64_t place = begin.value_or(0), before = 0, sectors = 0;
    for (std::size_t i = 0; i < file.tracks.size(); ++i) {
      CueTrack& cue = file.tracks[i];
      Track& track = cue.track;
      const std::uint64_t first = cue.First(), start = cue.index1.value_or(first);
      const std::uint32_t earlier = i == 0 ? track.sectorSize : file.tracks[i - 1].track.sectorSize;
      place += (std::max(first, before) - before) * earlier;
      before = std::max(first, before);
      track.begin = place + (std::max(start, first) - first) * track.sectorSize;
      track.swapped = swapped && track.audio;
      if (bytes && begin) track.bytes = bytes;
      const std::uint64_t end = bytes ? bytes->Size() : 0;
      track.sectors = (std::max(end, track.begin) - track.begin + track.sectorSize - 1) / track.sectorSize;
      sectors = start + track.sectors;
      if (i + 1 < file.tracks.size())
        track.sectors = std::min(track.sectors, std::max(file.tracks[i + 1].First(), start) - start);
      Place(track, cue.pregap, start);
    }
    address_ += sectors;
  }

  TrackList Take() {
    const bool data =
        std::ranges::any_of(list_.tracks, [](const Track& track) { return track.bytes && !track.audio; });
    if (!data) list_.problem = missing_;
    if (list_.tracks.empty() && missing_.empty())
      list_.problem = sheet_.string() + ": " + Translated("the sheet names no track");
    return std::move(list_);
  }

 private:
  void Place(Track& track, std::uint64_t pregap, std::uint64_t start) {
    if (!list_.tracks.empty() && track.session != list_.tracks.back().session)
      address_ += list_.tracks.back().session == 1 ? kFirstSessionGap : kSessionGap;
    // The one before the first track is on every disc and not counted.
    if (!list_.tracks.empty()) address_ += pregap;
    track.address = static_cast<std::int64_t>(address_ + start);
    list_.tracks.push_back(track);
  }

  const std::filesystem::path& sheet_;
  TrackList list_;
  std::uint64_t address_ = 0;  // of the file's first sector
  std::string missing_;
};

}  // namespace

TrackList ReadCueSheet(const std::filesystem::path& sheet, std::string_view text) {
  Layout layout(sheet);
  for (CueFile& file : Parse(text)) layout.Add(file);
  return layout.Take();
}

}  // namespace orvanta
