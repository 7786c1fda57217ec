#include <string>

#include "disctool/Translation.h"
#include "disctool/image/sectors/Fields.h"
#include "disctool/image/sectors/SheetFile.h"
#include "disctool/image/sectors/Sheets.h"

namespace orvanta {
namespace {

// Sizes of the blocks, and where they say where others are, in bytes.
constexpr std::size_t kSessionBytes = 24, kTrackBytes = 80;
constexpr std::size_t kVersionAt = 16, kSessionsAt = 20, kFirstSessionAt = 80;
constexpr std::uint64_t kMostSessions = 99;

class AlcoholReader {
 public:
  AlcoholReader(const std::filesystem::path& sheet, std::string_view content)
      : sheet_(sheet), content_(content) {}

  TrackList Read() {
    const std::uint64_t sessions = std::min(Number(kSessionsAt, 2), kMostSessions);
    for (std::uint64_t i = 0; i < sessions; ++i)
      ReadSession(Number(kFirstSessionAt, 4) + i * kSessionBytes, static_cast<int>(i + 1));
    if (list_.tracks.empty() && list_.problem.empty())
      list_.problem = sheet_.string() + ": " + Translated("the sheet names no track");
    return std::move(list_);
  }

 private:
  std::uint64_t Number(std::uint64_t at, std::size_t width) const {
    return LittleEndian(content_, static_cast<std::size_t>(at), width);
  }

  void ReadSession(std::uint64_t at, int session) {
    const std::uint64_t blocks = Number(at + 10, 1), first = Number(at + 20, 4);
    for (std::uint64_t i = 0; i < blocks; ++i) ReadTrack(first + i * kTrackBytes, session);
  }

  void ReadTrack(std::uint64_t at, int session) {
    constexpr std::uint64_t kLastTrack = 99, kAudio = 1, kModes = 7, kSmallest = 2048, kLargest = 2448;
    const std::uint64_t point = Number(at + 4, 1), size = Number(at + 16, 2);
    // Other points are about the session; other sizes hold no data that could be read.
    if (point < 1 || point > kLastTrack || size < kSmallest || size > kLargest) return;
    Track track{static_cast<int>(point), session, (Number(at, 1) & kModes) == kAudio,
                Data(Number(at + 52, 4))};
    if (!track.bytes) return;
    track.begin = Number(at + 40, 8);
    track.sectorSize = static_cast<std::uint32_t>(size);
    track.address = static_cast<std::int32_t>(Number(at + 36, 4));
    const std::uint64_t end = track.bytes->Size(), lengths = Number(at + 12, 4);
    track.sectors = (std::max(end, track.begin) - track.begin + size - 1) / size;
    // A DVD has none.
    if (lengths != 0) track.sectors = std::min(track.sectors, Number(lengths + 4, 4));
    list_.tracks.push_back(std::move(track));
  }

  /// The data file; the name "*.mdf" means that of the sheet. All tracks have the same one.
  Bytes Data(std::uint64_t footer) {
    if (data_ || !list_.problem.empty()) return data_;
    const bool wide = Number(footer + 4, 4) != 0;
    std::string name;
    for (std::uint64_t at = Number(footer, 4); at < content_.size() && name.size() < 1000;
         at += wide ? 2 : 1) {
      const char c = content_[static_cast<std::size_t>(at)];
      if (c == '\0') break;
      // A name beyond ASCII is found by the sheet's own name.
      name += wide && Number(at + 1, 1) != 0 ? '?' : c;
    }
    if (name.empty() || name.front() == '*')
      name = sheet_.stem().string() + (name.empty() ? ".mdf" : name.substr(1));
    return data_ = OpenSheetFile(sheet_, name, list_.problem);
  }

  const std::filesystem::path& sheet_;
  const std::string_view content_;
  TrackList list_;
  Bytes data_;
};

}  // namespace

TrackList ReadAlcoholSheet(const std::filesystem::path& sheet, std::string_view content) {
  if (LittleEndian(content, kVersionAt, 1) == 1) return AlcoholReader(sheet, content).Read();
  return {{},
          sheet.string() + ": " +
              Translated("this MDS file is encrypted; name the MDF file itself, or "
                         "save the image as ISO or BIN with the program that made it")};
}

}  // namespace orvanta
