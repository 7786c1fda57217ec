#include <algorithm>
#include <map>
#include <string>

#include "disctool/image/sectors/Fields.h"
#include "disctool/image/sectors/Sheets.h"

namespace orvanta {
namespace {

constexpr std::size_t kChunkHeader = 8;
constexpr std::uint64_t kLargestChunk = 1024 * 1024;
constexpr int kMostChunks = 1000;

/// Where the first chunk lies; 0 if the file does not end as it should.
std::uint64_t FirstChunk(const ByteSource& bytes) {
  constexpr std::uint64_t kFooter = 12;
  if (bytes.Size() < kFooter) return 0;
  const std::string footer = bytes.Text(bytes.Size() - kFooter, kFooter);
  if (footer.starts_with("NER5")) return BigEndian(footer, 4, 8);
  return footer.substr(4).starts_with("NERO") ? BigEndian(footer, 8, 4) : 0;
}

constexpr std::uint64_t kAudio = 7, kAudioWithSubchannel = 16;

/// Sizes of sectors by the modes of tracks.
std::uint32_t SectorSizeOf(std::uint64_t mode) {
  switch (mode) {
    case 0: return 2048;
    case 2:
    case 3: return 2336;
    case 15:
    case 16:
    case 17: return kRawSector + 96;
    default: return kRawSector;
  }
}

/// A number in binary coded decimal.
std::int64_t Decimal(std::uint64_t coded) {
  return static_cast<std::int64_t>((coded >> 4 & 15) * 10 + (coded & 15));
}

class NeroReader {
 public:
  explicit NeroReader(const Bytes& bytes) : bytes_(bytes) {}

  TrackList Read() {
    std::uint64_t at = FirstChunk(*bytes_);
    for (int i = 0; i < kMostChunks; ++i) {
      const std::string header = bytes_->Text(at, kChunkHeader);
      const std::uint64_t size = BigEndian(header, 4, 4);
      if (header.size() < kChunkHeader || size > kLargestChunk) break;
      const std::string name = header.substr(0, 4), content = bytes_->Text(at + kChunkHeader, size);
      if (name == "END!") break;
      Take(name, content);
      at += kChunkHeader + size;
    }
    for (Track& track : list_.tracks)
      if (const auto found = addresses_.find(track.number); found != addresses_.end())
        track.address = found->second;
    return std::move(list_);
  }

 private:
  void Take(std::string_view name, std::string_view content) {
    if (name == "CUES" || name == "CUEX") Addresses(content, name == "CUEX");
    if (name == "DAOI") DiscAtOnce(content, 4);
    if (name == "DAOX") DiscAtOnce(content, 8);
    if (name == "ETNF") TrackAtOnce(content, 4);
    if (name == "ETN2") TrackAtOnce(content, 8);
    if (name == "SINF") ++session_;
  }

  /// Addresses of the tracks on the disc: as such, or in older files as minutes, seconds and sectors.
  void Addresses(std::string_view content, bool binary) {
    constexpr std::size_t kEntry = 8;
    for (; content.size() >= kEntry; content.remove_prefix(kEntry)) {
      if (BigEndian(content, 2, 1) != 1) continue;
      const std::int64_t seconds = Decimal(BigEndian(content, 5, 1)) * 60 + Decimal(BigEndian(content, 6, 1));
      addresses_[static_cast<int>(Decimal(BigEndian(content, 1, 1)))] =
          binary ? static_cast<std::int32_t>(BigEndian(content, 4, 4))
                 : seconds * kSectorsPerSecond + Decimal(BigEndian(content, 7, 1)) - kPregap;
    }
  }

  void DiscAtOnce(std::string_view content, std::size_t width) {
    constexpr std::size_t kHeader = 22, kFirstTrackAt = 20, kPlacesAt = 18;
    int number = static_cast<int>(BigEndian(content, kFirstTrackAt, 1));
    const std::size_t entry = kPlacesAt + 3 * width;
    for (std::size_t at = kHeader; content.size() >= at + entry; at += entry, ++number) {
      const std::uint64_t mode = BigEndian(content, at + 14, 1);
      const std::uint64_t begin = BigEndian(content, at + kPlacesAt + width, width);
      const std::uint64_t end = BigEndian(content, at + kPlacesAt + 2 * width, width);
      Add(number, mode, static_cast<std::uint32_t>(BigEndian(content, at + 12, 2)), begin, end);
    }
  }

  void TrackAtOnce(std::string_view content, std::size_t width) {
    const std::size_t entry = 2 * width + 12;
    for (; content.size() >= entry; content.remove_prefix(entry)) {
      const int number = static_cast<int>(list_.tracks.size()) + 1;
      const std::uint64_t begin = BigEndian(content, 0, width), mode = BigEndian(content, 2 * width, 4);
      Add(number, mode, SectorSizeOf(mode), begin, begin + BigEndian(content, width, width));
      addresses_[number] = static_cast<std::int32_t>(BigEndian(content, 2 * width + 4, 4));
    }
  }

  void Add(int number, std::uint64_t mode, std::uint32_t size, std::uint64_t begin, std::uint64_t end) {
    constexpr std::uint32_t kSmallest = 2048, kLargest = 2448;
    end = std::min(end, bytes_->Size());
    if (size < kSmallest || size > kLargest || begin >= end) return;
    Track track{number, session_, mode == kAudio || mode == kAudioWithSubchannel, bytes_, begin, size};
    track.sectors = (end - begin) / size;
    list_.tracks.push_back(std::move(track));
  }

  const Bytes& bytes_;
  TrackList list_;
  std::map<int, std::int64_t> addresses_;  // by the tracks' numbers
  int session_ = 1;
};

}  // namespace

bool IsNeroImage(const ByteSource& bytes) { return FirstChunk(bytes) != 0; }

TrackList ReadNeroImage(const Bytes& bytes) { return NeroReader(bytes).Read(); }

}  // namespace orvanta
