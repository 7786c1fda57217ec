#include "disctool/image/sectors/DataSectors.h"

#include <algorithm>
#include <array>

#include "disctool/image/sectors/Fields.h"

namespace orvanta {
namespace {

/// Of a sector: synchronisation, then the header, whose last byte is the mode; then the data in mode 1, and
/// eight bytes more before it in mode 2 (ECMA-130, 14; CD-ROM XA, System Description, II).
constexpr std::uint32_t kModeAt = 15, kMode1Data = 16, kMode2Data = 24;
constexpr std::uint32_t kSubchannel = 96;

struct KnownLayout {
  std::uint32_t stride, userData;
};
/// What sectors are kept as: their data alone, all of them but synchronisation and header, whole, and each of
/// these with their subchannels behind.
constexpr KnownLayout kKnownLayouts[] = {
    {kBlock, 0},
    {kRawSector, kMode1Data},
    {kRawSector, kMode2Data},
    {kRawSector - kMode1Data, 0},
    {kRawSector - kMode1Data, kMode2Data - kMode1Data},
    {kRawSector + kSubchannel, kMode1Data},
    {kRawSector + kSubchannel, kMode2Data},
    {kBlock + kSubchannel, 0},
    {kRawSector - kMode1Data + kSubchannel, kMode2Data - kMode1Data},
};

bool HasDescriptor(const ByteSource& bytes, const SectorLayout& layout) {
  constexpr std::uint64_t kDescriptorAt = 16;
  std::array<char, 6> found{};
  const std::uint64_t at = layout.begin + kDescriptorAt * layout.stride + layout.userData;
  // The type of a descriptor may be any.
  return bytes.Read(at, found) == found.size() && std::string_view(found.data() + 1, 5) == "CD001";
}

/// By what its first sector says of itself.
SectorLayout LayoutOf(const Track& track) {
  SectorLayout layout{track.begin, track.sectorSize, 0};
  if (track.sectorSize >= kRawSector) {
    const std::string mode = track.bytes->Text(track.begin + kModeAt, 1);
    layout.userData = mode == "\2" ? kMode2Data : kMode1Data;
  } else if (track.sectorSize >= kRawSector - kMode1Data) {
    layout.userData = kMode2Data - kMode1Data;
  }
  return layout;
}

DataSectors::Run RunOf(const Track& track, const SectorLayout& layout) {
  const std::uint64_t skipped = (layout.begin - track.begin) / layout.stride;
  const auto first = static_cast<std::uint64_t>(std::max<std::int64_t>(track.address, 0));
  return {first, track.sectors - std::min(track.sectors, skipped), layout, track.bytes};
}

/// Reads from within a run, whole sectors at a time: small reads of a large file cost more than large ones.
std::size_t ReadRun(const DataSectors::Run& run, std::uint64_t at, std::span<char> into) {
  constexpr std::size_t kMostSectors = 64;
  const SectorLayout& layout = run.layout;
  const std::uint64_t begin = layout.begin + layout.userData;
  if (layout.stride == kBlock) return run.bytes->Read(begin + at, into);
  std::vector<char> raw(std::min<std::size_t>(kMostSectors, into.size() / kBlock + 2) * layout.stride);
  std::size_t done = 0;
  while (done < into.size()) {
    const std::uint64_t sector = (at + done) / kBlock, from = (at + done) % kBlock;
    const std::size_t wanted = (static_cast<std::size_t>(from) + into.size() - done + kBlock - 1) / kBlock;
    const std::size_t sectors = std::min(wanted, raw.size() / layout.stride);
    const std::size_t asked = (sectors - 1) * layout.stride + kBlock;
    const std::size_t got = run.bytes->Read(begin + sector * layout.stride, std::span(raw).first(asked));
    for (std::size_t i = 0, skip = static_cast<std::size_t>(from); i < sectors && done < into.size();
         ++i, skip = 0) {
      const std::size_t place = i * layout.stride + skip;
      const std::size_t part = std::min(kBlock - skip, into.size() - done);
      if (place + part > got) return done;
      std::copy_n(raw.data() + place, part, into.data() + done);
      done += part;
    }
  }
  return done;
}

}  // namespace

std::size_t DataSectors::Read(std::uint64_t at, std::span<char> into) const {
  std::size_t done = 0;
  while (done < into.size()) {
    const std::uint64_t block = (at + done) / kBlock;
    const auto run = std::ranges::find_if(
        runs, [&](const Run& r) { return block >= r.first && block - r.first < r.count; });
    if (run == runs.end()) break;
    const std::uint64_t place = at + done - run->first * kBlock;
    const std::uint64_t left = run->count * kBlock - place;
    const auto part = static_cast<std::size_t>(std::min<std::uint64_t>(left, into.size() - done));
    const std::size_t got = ReadRun(*run, place, into.subspan(done, part));
    done += got;
    if (got < part) break;
  }
  return done;
}

std::string DataSectors::Text(std::uint64_t at, std::uint64_t most) const {
  constexpr std::uint64_t kPart = 256 * 1024;
  std::string text;
  while (text.size() < most) {
    const std::size_t before = text.size();
    text.resize(before + static_cast<std::size_t>(std::min(kPart, most - before)));
    const std::size_t got = Read(at + before, std::span(text).subspan(before));
    if (before + got == text.size()) continue;
    text.resize(before + got);
    break;
  }
  return text;
}

std::optional<SectorLayout> FindLayout(const ByteSource& bytes, std::uint64_t begin, std::uint32_t stride) {
  for (const bool known : {true, false}) {
    for (const std::uint64_t pregap : {0U, kPregap}) {
      for (const KnownLayout& tried : kKnownLayouts) {
        if ((tried.stride == stride) != known) continue;
        const SectorLayout layout{begin + pregap * tried.stride, tried.stride, tried.userData};
        if (HasDescriptor(bytes, layout)) return layout;
      }
    }
  }
  return std::nullopt;
}

std::optional<SessionData> FindSession(const TrackList& image) {
  SessionData data;
  bool found = false;
  int session = 0;
  for (const Track& track : image.tracks) {
    if (track.audio || !track.bytes || track.sectorSize < kBlock) continue;
    const auto layout = FindLayout(*track.bytes, track.begin, track.sectorSize);
    data.sectors.runs.push_back(RunOf(track, layout.value_or(LayoutOf(track))));
    // A later data track of the same session belongs to the file system of the first.
    if (!layout || (found && track.session == session)) continue;
    found = true;
    session = track.session;
    data.run = data.sectors.runs.size() - 1;
  }
  return found ? std::optional(std::move(data)) : std::nullopt;
}

}  // namespace orvanta
