#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "disctool/Translation.h"
#include "disctool/disc/IniFile.h"
#include "disctool/image/sectors/SheetFile.h"
#include "disctool/image/sectors/Sheets.h"

namespace orvanta {
namespace {

/// A session, with addresses on the disc.
struct CloneSession {
  struct Start {
    int number = 0;
    bool audio = false;
    std::int64_t address = 0;
  };
  std::vector<Start> starts;
  std::int64_t end = 0;
};

std::int64_t Value(const IniSection& section, std::string_view key) {
  const IniEntry* entry = section.Find(key);
  return entry ? std::strtol(entry->value.c_str(), nullptr, 0) : 0;
}

/// The entries of the table of contents; numbers above those of tracks have other meanings.
std::map<int, CloneSession> SessionsOf(const IniFile& sheet) {
  constexpr std::int64_t kLastTrack = 99, kLeadOut = 0xA2, kDataTrack = 4;
  std::map<int, CloneSession> sessions;
  for (const IniSection& section : sheet.sections) {
    if (section.name.compare(0, 6, "Entry ") != 0) continue;
    const std::int64_t point = Value(section, "Point"), address = Value(section, "PLBA");
    CloneSession& session = sessions[static_cast<int>(Value(section, "Session"))];
    if (point == kLeadOut) session.end = address;
    if (point >= 1 && point <= kLastTrack)
      session.starts.push_back(
          {static_cast<int>(point), (Value(section, "Control") & kDataTrack) == 0, address});
  }
  return sessions;
}

}  // namespace

TrackList ReadCloneSheet(const std::filesystem::path& sheet, std::string_view text) {
  TrackList list;
  const Bytes bytes = OpenSheetFile(sheet, sheet.stem().string() + ".img", list.problem);
  if (!bytes) return list;
  std::int64_t stored = 0;  // sectors of earlier sessions in the file, which leaves out what lies between
  for (const auto& [number, session] : SessionsOf(ParseIniFile(text))) {
    for (std::size_t i = 0; i < session.starts.size(); ++i) {
      const auto& start = session.starts[i];
      const std::int64_t end = i + 1 < session.starts.size() ? session.starts[i + 1].address : session.end;
      const std::int64_t place = stored + start.address - session.starts[0].address;
      if (place < 0 || end < start.address) continue;
      Track track{start.number, number, start.audio, bytes};
      track.begin = static_cast<std::uint64_t>(place) * kRawSector;
      track.sectors = static_cast<std::uint64_t>(end - start.address);
      track.address = start.address;
      list.tracks.push_back(std::move(track));
    }
    if (!session.starts.empty()) stored += std::max<std::int64_t>(session.end - session.starts[0].address, 0);
  }
  if (list.tracks.empty()) list.problem = sheet.string() + ": " + Translated("the sheet names no track");
  return list;
}

}  // namespace orvanta
