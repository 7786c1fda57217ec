#include "disctool/image/volume/RockRidge.h"

#include <algorithm>

#include "disctool/image/sectors/Fields.h"

namespace orvanta {
namespace {

/// A field starts with its name, its length and its version.
constexpr std::size_t kFieldHeader = 4;
/// A record with more of them is malicious, since no name is so long.
constexpr int kMostContinuations = 32;
constexpr std::size_t kLongestText = 64 * 1024;

// Flags of NM and of the components of SL.
constexpr unsigned kContinues = 1, kCurrent = 2, kParent = 4, kRoot = 8;

void AddName(RockRidge& entry, std::string_view field) {
  const auto flags = static_cast<unsigned>(LittleEndian(field, kFieldHeader, 1));
  if ((flags & (kCurrent | kParent)) != 0 || field.size() < kFieldHeader + 1) return;
  if (!entry.name) entry.name.emplace();
  if (entry.name->size() < kLongestText) *entry.name += field.substr(kFieldHeader + 1);
}

/// Adds the components of a link's path; one that continues is joined with the next.
void AddTarget(RockRidge& entry, std::string_view field, bool& joined) {
  if (!entry.target) entry.target.emplace();
  std::string& target = *entry.target;
  field.remove_prefix(std::min(field.size(), kFieldHeader + 1));
  while (field.size() >= 2 && target.size() < kLongestText) {
    const auto flags = static_cast<unsigned>(LittleEndian(field, 0, 1));
    const std::size_t length = std::min<std::size_t>(LittleEndian(field, 1, 1), field.size() - 2);
    if (!joined && !target.empty() && target != "/") target += '/';
    if ((flags & kRoot) != 0) target = "/";
    if ((flags & kCurrent) != 0) target += '.';
    if ((flags & kParent) != 0) target += "..";
    target += field.substr(2, length);
    joined = (flags & kContinues) != 0;
    field.remove_prefix(2 + length);
  }
}

struct Continuation {
  std::uint64_t block = 0, offset = 0, bytes = 0;
};

/// Reads the fields of one area and returns where they continue.
Continuation ReadArea(RockRidge& entry, std::string_view area, bool& joined) {
  Continuation next;
  while (area.size() >= kFieldHeader) {
    const std::size_t length = LittleEndian(area, 2, 1);
    if (length < kFieldHeader || length > area.size()) break;
    const std::string_view name = area.substr(0, 2), field = area.substr(0, length);
    if (name == "ST") break;
    // Numbers are stored twice, low byte first and high byte first.
    if (name == "CE")
      next = {LittleEndian(field, 4, 4), LittleEndian(field, 12, 4), LittleEndian(field, 20, 4)};
    if (name == "NM") AddName(entry, field);
    if (name == "PX") entry.mode = static_cast<std::uint32_t>(LittleEndian(field, 4, 4));
    if (name == "SL") AddTarget(entry, field, joined);
    if (name == "CL") entry.child = static_cast<std::uint32_t>(LittleEndian(field, 4, 4));
    if (name == "RE") entry.moved = true;
    if (name == "ZF") entry.compressed = true;
    area.remove_prefix(length);
  }
  return next;
}

}  // namespace

std::optional<std::size_t> RockRidgeSkip(std::string_view systemUse) {
  // CD-ROM XA puts 14 bytes of its own in front.
  constexpr std::size_t kXaBytes = 14;
  for (const std::size_t skip : {std::size_t{0}, kXaBytes}) {
    if (systemUse.size() < skip + 7) break;
    const std::string_view field = systemUse.substr(skip);
    if (field.starts_with("SP") && field.substr(4, 2) == "\xBE\xEF") return LittleEndian(field, 6, 1);
  }
  return std::nullopt;
}

RockRidge ReadRockRidge(std::string_view systemUse, const DataSectors& sectors) {
  RockRidge entry;
  bool joined = true;
  Continuation next = ReadArea(entry, systemUse, joined);
  for (int i = 0; i < kMostContinuations && next.bytes > 0; ++i) {
    const std::string area =
        sectors.Text(next.block * kBlock + next.offset, std::min<std::uint64_t>(next.bytes, kBlock));
    next = ReadArea(entry, area, joined);
  }
  return entry;
}

}  // namespace orvanta
