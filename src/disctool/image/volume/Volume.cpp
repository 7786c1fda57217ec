#include "disctool/image/volume/Volume.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <set>
#include <unordered_set>
#include <utility>

#include "disctool/OutputText.h"
#include "disctool/Translation.h"
#include "disctool/image/sectors/Fields.h"
#include "disctool/image/volume/RockRidge.h"
#include "disctool/image/volume/VolumeNames.h"

namespace orvanta {
namespace {

// ECMA-119, 8 and 9.1.
constexpr std::uint64_t kFirstDescriptor = 16, kMostDescriptors = 64;
constexpr char kPrimary = 1, kSupplementary = 2, kTerminator = '\xFF';
constexpr std::size_t kLabelAt = 40, kLabelBytes = 32, kEscapesAt = 88, kRootAt = 156, kRootBytes = 34;
constexpr std::size_t kSizeAt = 80, kDatesAt = 813, kDatesBytes = 34;
constexpr std::size_t kRecordBytes = 33;
constexpr unsigned kFolderFlag = 2, kAssociatedFlag = 4, kMoreExtentsFlag = 0x80;

/// In bytes; larger than on any disc, so that a hostile one does not cost more memory.
constexpr std::uint64_t kLargestFolder = 16 * 1024 * 1024;
/// How many folders are searched for names that are not UTF-8.
constexpr std::size_t kMostSearched = 5000;

std::size_t NameBytes(std::string_view record) { return LittleEndian(record, 32, 1); }
std::string_view NameOf(std::string_view record) { return record.substr(kRecordBytes, NameBytes(record)); }
unsigned FlagsOf(std::string_view record) { return static_cast<unsigned>(LittleEndian(record, 25, 1)); }

std::string_view SystemUse(std::string_view record) {
  const std::size_t name = NameBytes(record);
  // A name of even length is followed by a padding byte.
  const std::size_t at = kRecordBytes + name + (name % 2 == 0 ? 1 : 0);
  return record.substr(std::min(at, record.size()));
}

/// Where the data of a record begins, after attributes that no disc has.
Extent ExtentOf(std::string_view record) {
  return {static_cast<std::uint32_t>(LittleEndian(record, 2, 4) + LittleEndian(record, 1, 1)),
          static_cast<std::uint32_t>(LittleEndian(record, 10, 4))};
}

VolumeEntry FolderAt(std::string_view record) {
  VolumeEntry folder;
  folder.kind = EntryKind::Folder;
  folder.extents = {ExtentOf(record)};
  return folder;
}

/// Whether a descriptor is Joliet's; the level of Unicode does not matter (Joliet, "SVD Identification").
bool IsJoliet(std::string_view descriptor) {
  const std::string_view escapes = descriptor.substr(kEscapesAt, 3);
  return escapes == "%/@" || escapes == "%/C" || escapes == "%/E";
}

/// Calls `take` with each record of a folder. Records do not cross the end of a block.
template <class Take>
void ForEachRecord(std::string_view folder, Take take) {
  for (std::size_t begin = 0; begin < folder.size(); begin += kBlock) {
    std::string_view block = folder.substr(begin, kBlock);
    while (!block.empty()) {
      const std::size_t length = LittleEndian(block, 0, 1);
      if (length <= kRecordBytes || length > block.size()) break;
      const std::string_view record = block.substr(0, length);
      if (NameBytes(record) <= length - kRecordBytes) take(record);
      block.remove_prefix(length);
    }
  }
}

/// Whether it is one of the first two records of a folder, which stand for the folder itself and its parent.
bool IsDots(std::string_view record) {
  const std::string_view name = NameOf(record);
  return name.size() == 1 && (name[0] == '\0' || name[0] == '\1');
}

bool IsFolderAt(std::string_view block, std::uint32_t address) {
  return LittleEndian(block, 0, 1) > kRecordBytes && LittleEndian(block, 2, 4) == address &&
         NameBytes(block) == 1 && NameOf(block) == std::string_view("\0", 1);
}

/// Converts a date (ECMA-119, 9.1.5): years since 1900, month, day, hour, minute, second, and the offset from
/// UTC in quarters of an hour.
std::int64_t DateOf(std::string_view record) {
  namespace time = std::chrono;
  const auto at = [&](std::size_t i) { return static_cast<int>(LittleEndian(record, 18 + i, 1)); };
  const time::year_month_day day{time::year(1900 + at(0)), time::month(static_cast<unsigned>(at(1))),
                                 time::day(static_cast<unsigned>(at(2)))};
  if (!day.ok()) return 0;
  constexpr int kQuarter = 15 * 60;
  const int east = static_cast<signed char>(at(6));
  return time::sys_seconds(time::sys_days(day)).time_since_epoch().count() + at(3) * 3600 + at(4) * 60 +
         at(5) - east * kQuarter;
}

EntryKind KindOfMode(std::uint32_t mode) {
  // The file types of stat(), in the numbers that Rock Ridge uses on every system.
  switch (mode & 0170000) {
    case 0040000: return EntryKind::Folder;
    case 0100000: return EntryKind::File;
    case 0120000: return EntryKind::Link;
    default: return EntryKind::Other;
  }
}

/// Adds up every fourth byte, four times; the first sum is the highest byte.
std::uint32_t SerialOf(std::string_view descriptor) {
  std::array<std::uint8_t, 4> sums{};
  for (std::size_t i = 0; i < descriptor.size(); ++i)
    sums[i % 4] = static_cast<std::uint8_t>(sums[i % 4] + static_cast<unsigned char>(descriptor[i]));
  std::uint32_t serial = 0;
  for (const std::uint8_t sum : sums) serial = serial << 8 | sum;
  return serial;
}

std::string Trimmed(std::string label) {
  while (label.ends_with(' ') || label.ends_with('\0')) label.pop_back();
  return label;
}

}  // namespace

std::unique_ptr<Volume> Volume::Open(SessionData data) {
  const std::size_t run = data.run;
  std::unique_ptr<Volume> volume(new Volume(std::move(data)));
  return volume->ReadDescriptors(run) ? std::move(volume) : nullptr;
}

bool Volume::ReadDescriptors(std::size_t run) {
  // The session's own sectors come first, wherever a bad sheet puts them.
  std::swap(sectors_.runs[0], sectors_.runs[run]);
  const std::uint64_t begin = sectors_.runs[0].first;
  std::string primary, joliet;
  for (std::uint64_t i = 0; i < kMostDescriptors; ++i) {
    const std::string found = sectors_.Text((begin + kFirstDescriptor + i) * kBlock, kBlock);
    if (found.size() < kBlock || found.substr(1, 5) != "CD001" || found[0] == kTerminator) break;
    if (found[0] == kPrimary && primary.empty()) primary = found;
    if (found[0] == kSupplementary && joliet.empty() && IsJoliet(found)) joliet = found;
  }
  if (primary.empty()) return false;
  id_ = primary.substr(kLabelAt, kLabelBytes) + primary.substr(kSizeAt, 4) +
        primary.substr(kDatesAt, kDatesBytes);
  sectors_.runs[0].first = FindRoot(ExtentOf(primary.substr(kRootAt, kRootBytes)).block);
  UseNames(primary, joliet);
  serial_ = SerialOf(joliet.empty() ? primary : joliet);
  return true;
}

/// Where the session really begins on the disc. Sheets often do not say what precedes it, but the root
/// folder, which is always near and in the same session, contains its own address.
std::uint64_t Volume::FindRoot(std::uint32_t block) const {
  constexpr std::uint64_t kFarthest = 1024;
  const DataSectors::Run& session = sectors_.runs[0];
  const bool inside = block >= session.first && block - session.first < session.count;
  if (inside && IsFolderAt(sectors_.Text(std::uint64_t{block} * kBlock, kBlock), block)) return session.first;
  for (std::uint64_t at = kFirstDescriptor + 1; at < kFarthest; ++at) {
    const std::string found = sectors_.Text((session.first + at) * kBlock, kBlock);
    if (found.size() < kBlock) break;
    if (block >= at && IsFolderAt(found, block)) return block - at;
  }
  return session.first;
}

void Volume::UseNames(const std::string& primary, const std::string& joliet) {
  const auto use = [this](Names names, const std::string& descriptor) {
    names_ = names;
    root_ = FolderAt(std::string_view(descriptor).substr(kRootAt, kRootBytes));
    const std::string label = descriptor.substr(kLabelAt, kLabelBytes);
    label_ = Trimmed(names == Names::Joliet ? JolietNameInUtf8(label) : NameInUtf8(label));
  };
  use(Names::Plain, primary);
  const std::string first = sectors_.Text(std::uint64_t{root_.extents[0].block} * kBlock, kBlock);
  const std::size_t length = LittleEndian(first, 0, 1);
  const auto skip = length > kRecordBytes && length <= first.size()
                        ? RockRidgeSkip(SystemUse(std::string_view(first).substr(0, length)))
                        : std::nullopt;
  if (skip) {
    names_ = Names::RockRidge;
    skip_ = *skip;
  }
  if (!joliet.empty() && (!skip || !AllNamesAreUtf8())) use(Names::Joliet, joliet);
}

bool Volume::AllNamesAreUtf8() const {
  std::vector<VolumeEntry> folders{root_};
  std::set<std::uint32_t> seen;
  while (!folders.empty() && seen.size() < kMostSearched) {
    const VolumeEntry folder = std::move(folders.back());
    folders.pop_back();
    if (!seen.insert(folder.extents[0].block).second) continue;
    bool good = true;
    ForEachRecord(BytesOf(folder), [&](std::string_view record) {
      if (IsDots(record)) return;
      const RockRidge more =
          ReadRockRidge(SystemUse(record).substr(std::min(skip_, SystemUse(record).size())), sectors_);
      good = good && (!more.name || IsUtf8(*more.name));
      if ((FlagsOf(record) & kFolderFlag) != 0) folders.push_back(FolderAt(record));
    });
    if (!good) return false;
  }
  return true;
}

std::string Volume::BytesOf(const VolumeEntry& folder) const {
  const Extent extent = folder.extents.empty() ? Extent{} : folder.extents[0];
  return sectors_.Text(std::uint64_t{extent.block} * kBlock,
                       std::min<std::uint64_t>(extent.bytes, kLargestFolder));
}

VolumeEntry Volume::EntryOf(std::string_view record) const {
  VolumeEntry entry;
  entry.extents = {ExtentOf(record)};
  entry.modified = DateOf(record);
  entry.kind = (FlagsOf(record) & kFolderFlag) != 0 ? EntryKind::Folder : EntryKind::File;
  // Unit size and gap: the file is interleaved with others.
  entry.unreadable = LittleEndian(record, 26, 2) != 0;
  const std::string_view name = NameOf(record);
  if (names_ == Names::Joliet) {
    entry.name = WithoutVersion(JolietNameInUtf8(name));
    return entry;
  }
  entry.name = NameInUtf8(WithoutVersion(name));
  if (names_ == Names::Plain) return entry;
  const std::string_view use = SystemUse(record);
  const RockRidge more = ReadRockRidge(use.substr(std::min(skip_, use.size())), sectors_);
  if (more.moved) entry.name.clear();
  if (more.name && !more.moved) entry.name = NameInUtf8(*more.name);
  entry.unreadable = entry.unreadable || more.compressed;
  if (more.mode) {
    entry.permissions = *more.mode & 07777;
    entry.kind = KindOfMode(*more.mode);
  }
  if (more.target) entry.target = NameInUtf8(*more.target);
  if (!more.child) return entry;
  // The first record of the folder itself contains its size.
  const std::string first = sectors_.Text(std::uint64_t{*more.child} * kBlock, kRootBytes);
  entry.kind = EntryKind::Folder;
  entry.extents = {{*more.child, static_cast<std::uint32_t>(LittleEndian(first, 10, 4))}};
  return entry;
}

std::vector<VolumeEntry> Volume::List(const VolumeEntry& folder, std::string* fault) const {
  std::vector<VolumeEntry> entries;
  std::unordered_set<std::string> names;
  bool goesOn = false;
  ForEachRecord(BytesOf(folder), [&](std::string_view record) {
    if (IsDots(record) || (FlagsOf(record) & kAssociatedFlag) != 0) return;
    const bool more = (FlagsOf(record) & kMoreExtentsFlag) != 0;
    if (std::exchange(goesOn, more)) return entries.back().extents.push_back(ExtentOf(record));
    VolumeEntry entry = EntryOf(record);
    const bool fits = IsFileName(entry.name);
    if (!fits && !entry.name.empty() && fault)
      *fault = Translated("the image has a name that leads out of it: %1", "'" + Printable(entry.name) + "'");
    if (fits && names.insert(entry.name).second) {
      entries.push_back(std::move(entry));
    } else {
      goesOn = false;
    }
  });
  for (VolumeEntry& entry : entries) entry.unreadable = entry.unreadable || entry.Size() > Capacity();
  return entries;
}

std::uint64_t Volume::Capacity() const {
  std::uint64_t bytes = 0;
  for (const DataSectors::Run& run : sectors_.runs) bytes += run.count * kBlock;
  return bytes;
}

std::optional<std::string> Volume::Read(const VolumeEntry& file, std::uint64_t from,
                                        std::uint64_t most) const {
  if (file.kind != EntryKind::File || file.unreadable) return std::nullopt;
  std::string bytes;
  for (const Extent& extent : file.extents) {
    const std::uint64_t skip = std::min<std::uint64_t>(from, extent.bytes);
    from -= skip;
    const std::uint64_t wanted = std::min<std::uint64_t>(extent.bytes - skip, most - bytes.size());
    const std::string part = sectors_.Text(std::uint64_t{extent.block} * kBlock + skip, wanted);
    if (part.size() < wanted) return std::nullopt;
    bytes += part;
  }
  return bytes;
}

}  // namespace orvanta
