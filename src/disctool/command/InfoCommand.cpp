#include "disctool/command/InfoCommand.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "disctool/JsonObject.h"
#include "disctool/OutputText.h"
#include "disctool/Translation.h"
#include "disctool/check/Check.h"
#include "disctool/disc/DiscHashes.h"
#include "disctool/disc/DiscWalk.h"

namespace orvanta {
namespace {

/// A date such as "1998-03-21"; empty for 0.
std::string DateOf(std::int64_t seconds) {
  if (seconds == 0) return {};
  namespace time = std::chrono;
  const time::sys_seconds moment{time::seconds(seconds)};
  const time::year_month_day day{time::floor<time::days>(moment)};
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(day.year()),
                static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
  return text.data();
}

void CountFiles(DiscInfo& info, const DiscTree& disc) {
  for (const DiscFile& file : FilesOf(disc)) {
    ++info.files;
    info.bytes += file.entry.size;
    const std::int64_t date = file.entry.modified;
    if (date == 0) continue;
    info.oldest = info.oldest == 0 ? date : std::min(info.oldest, date);
    info.newest = std::max(info.newest, date);
  }
}

std::string CountOf(NodeKind kind, std::size_t count) {
  switch (kind) {
    case NodeKind::Menu: return TranslatedCount("%1 menu", "%1 menus", count);
    case NodeKind::Program: return TranslatedCount("%1 program", "%1 programs", count);
    case NodeKind::Music: return TranslatedCount("%1 piece of music", "%1 pieces of music", count);
    case NodeKind::Film: return TranslatedCount("%1 film", "%1 films", count);
    case NodeKind::Inert: break;
  }
  return TranslatedCount("%1 item that leads nowhere", "%1 items that lead nowhere", count);
}

std::string Row(const std::string& name, const std::string& value) {
  return value.empty() ? std::string() : "  " + name + ": " + Printable(value) + "\n";
}

/// "2 (3:15, 0:42)", empty for none.
std::string TracksText(const std::vector<int>& seconds) {
  std::string lengths;
  for (const int length : seconds) {
    const std::string rest = std::to_string(length % 60);
    lengths += (lengths.empty() ? "" : ", ") + std::to_string(length / 60) + ":" +
               (rest.size() < 2 ? "0" : "") + rest;
  }
  return seconds.empty() ? std::string() : std::to_string(seconds.size()) + " (" + lengths + ")";
}

std::string ProgramText(const DiscInfo::Program& program) {
  std::string text = program.entry + ": " + program.file + " (" + Translated(NameOf(program.target));
  if (!program.runner.name.empty()) text += Translated(", runs with %1", program.runner.name);
  if (!program.runner.missing.empty())
    text += Translated(", needs %1, which is not installed", program.runner.missing);
  return text + ")";
}

std::string ProgramJson(const DiscInfo::Program& program) {
  JsonObject json;
  json.Text("entry", program.entry).Text("file", program.file).Text("kind", IdOf(program.target));
  return json.Text("runner", program.runner.name).Text("needs", program.runner.missing).Done();
}

}  // namespace

DiscInfo ReadDiscInfo(const DiscTree& disc, const Catalogue& catalogue, const Findings& findings,
                      std::string_view searchPath) {
  DiscInfo info;
  info.name = disc.Name().string();
  info.label = disc.Label();
  info.title = catalogue.Find("HEADLINE", "Caption").value;
  CountFiles(info, disc);
  const MenuTree tree = ReadMenuTree(catalogue);
  for (const MenuNode& node : tree.nodes) {
    ++info.nodes[static_cast<std::size_t>(node.kind)];
    if (node.kind != NodeKind::Program) continue;
    const std::string file = catalogue.Find(node.name, "Execute").value;
    EntryTarget target = TargetOf(disc, file);
    Runner runner = FindRunner(target.facts, searchPath);
    info.programs.push_back({node.name, file, std::move(target), std::move(runner)});
  }
  info.errors = findings.Errors();
  info.warnings = findings.Warnings();
  return info;
}

std::string InfoText(const DiscInfo& info) {
  std::string dates = DateOf(info.oldest);
  if (dates != DateOf(info.newest)) dates = Translated("%1 to %2", dates, DateOf(info.newest));
  std::string entries;
  for (std::size_t kind = 0; kind < info.nodes.size(); ++kind)
    if (info.nodes[kind] > 0)
      entries += (entries.empty() ? "" : ", ") + CountOf(static_cast<NodeKind>(kind), info.nodes[kind]);
  std::string text = Printable(info.name) + "\n" + Row(Translated("title"), info.title) +
                     Row(Translated("label"), info.label) + Row(Translated("dates"), dates);
  text += Row(Translated("size"), TranslatedCount("%2 bytes in %1 file", "%2 bytes in %1 files",
                                                  static_cast<std::size_t>(info.files), info.bytes));
  text += Row(Translated("entries"), entries);
  for (const DiscInfo::Program& program : info.programs)
    text += Row(Translated("program"), ProgramText(program));
  text += Row(Translated("audio tracks"), TracksText(info.audioTracks));
  return text + Row(Translated("findings"), TranslatedCount("%1 error", "%1 errors", info.errors) + ", " +
                                                TranslatedCount("%1 warning", "%1 warnings", info.warnings));
}

void AddInfo(JsonObject& line, const DiscInfo& info) {
  JsonObject entries;
  for (std::size_t kind = 0; kind < info.nodes.size(); ++kind)
    entries.Number(NameOf(static_cast<NodeKind>(kind)), info.nodes[kind]);
  std::vector<std::string> programs;
  for (const DiscInfo::Program& program : info.programs) programs.push_back(ProgramJson(program));
  line.Text("title", info.title).Text("label", info.label);
  line.Text("oldest", DateOf(info.oldest)).Text("newest", DateOf(info.newest));
  line.Number("bytes", info.bytes).Number("files", info.files).Value("entries", entries.Done());
  line.Value("programs", JsonArray(programs));
  std::vector<std::string> tracks;
  for (const int length : info.audioTracks) tracks.push_back(std::to_string(length));
  line.Value("audioTracks", JsonArray(tracks));
  line.Number("errors", info.errors).Number("warnings", info.warnings);
}

DiscReport InfoReport(const DiscTree& disc, DiscProbe& probe, const InfoOptions& options) {
  DiscHashes hashes;
  if (options.hashes) hashes = HashesOf(disc);
  std::string problem =
      hashes.problem.empty() ? "" : hashes.problem + ": " + Translated("the file cannot be read");
  if (options.hashes && !options.json) return {ManifestText(disc, hashes), std::move(problem)};
  const Catalogue catalogue(disc);
  if (catalogue.Empty()) return {{}, NoDiscIn(disc.Name())};
  DiscInfo info = ReadDiscInfo(disc, catalogue, CheckDisc(disc, probe), options.searchPath);
  if (options.audioTracks) info.audioTracks = options.audioTracks(disc.Name());
  if (!options.json) return {InfoText(info)};
  JsonObject line = JsonLine(info.name);
  AddInfo(line, info);
  if (options.hashes) line.Value("hashes", HashesJson(hashes));
  return {line.Done() + "\n", std::move(problem)};
}

}  // namespace orvanta
