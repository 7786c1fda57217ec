#include "disctool/tool/ReportCommands.h"

#include <gst/gst.h>
#include <unistd.h>

#include <QGuiApplication>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>

#include "disctool/Translation.h"
#include "disctool/command/DiffCommand.h"
#include "disctool/command/FindCommand.h"
#include "disctool/command/FixCommand.h"
#include "disctool/command/InfoCommand.h"
#include "disctool/command/ManyDiscs.h"
#include "disctool/command/Sarif.h"
#include "disctool/image/HeldSignals.h"
#include "disctool/image/OpenTree.h"
#include "disctool/image/sectors/AudioTracks.h"
#include "disctool/tool/CommandSupport.h"
#include "disctool/tool/DesktopProbe.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// Adds the names in the list of `--from`. Returns what went wrong; empty on success.
std::string AddListed(const Request& request, std::vector<std::string>& discs) {
  if (!request.Has("from")) return {};
  const std::string list = request.Option("from");
  std::ifstream file;
  if (list != "-") file.open(list, std::ios::binary);
  std::istream& in = list == "-" ? std::cin : file;
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  if (!in || (list != "-" && fs::is_directory(list)))
    return list + ": " + std::strerror(errno ? errno : EISDIR);
  for (std::string& name : NamesInList(text)) discs.push_back(std::move(name));
  return {};
}

/// Calls `ask` for every disc that the user has named, starting with the argument `first`.
template <class Ask>
int Report(const Request& request, std::size_t first, const Ask& ask, std::ostream& out = std::cout) {
  std::vector<std::string> discs(request.words.begin() + static_cast<std::ptrdiff_t>(first),
                                 request.words.end());
  if (const std::string problem = AddListed(request, discs); !problem.empty()) return Outcome(problem);
  const bool many = discs.size() > 1;
  std::optional<ProgressBar> bar;
  if (many && isatty(STDERR_FILENO) != 0) bar.emplace(std::cerr, Translated("Discs"));
  const ManyDiscs run{.discs = std::move(discs),
                      .json = request.Has("json"),
                      .workers = 0,
                      .out = out,
                      .err = std::cerr,
                      .bar = bar ? &*bar : nullptr,
                      .stop = EndPending};
  return ReportDiscs(run, [&](const std::string& named) -> DiscReport {
    std::string problem;
    const auto disc = OpenTree(named, problem);
    return disc ? ask(*disc, many) : DiscReport{{}, problem};
  });
}

/// Initialises Qt and GStreamer before threads use them.
class ProbeReady {
 public:
  ProbeReady(int& argc, char** argv) : application_(PreparedForNoDisplay(argc), argv) {
    gst_init_check(nullptr, nullptr, nullptr);
  }
  DesktopProbe probe;

 private:
  const HeldSignals held_;
  const QGuiApplication application_;
};

/// In seconds, rounded.
std::vector<int> TrackLengths(const fs::path& disc) {
  std::vector<int> lengths;
  std::error_code error;
  if (!fs::is_directory(disc, error))
    for (const Track& track : AudioTracksOf(disc).tracks)
      lengths.push_back(static_cast<int>((track.sectors + kSectorsPerSecond / 2) / kSectorsPerSecond));
  return lengths;
}

}  // namespace

int RunInfo(const Request& request, int& argc, char** argv) {
  ProbeReady ready(argc, argv);
  const char* path = std::getenv("PATH");
  const InfoOptions options{request.Has("json"), request.Has("hashes"), path ? path : "", TrackLengths};
  return Report(request, 0,
                [&](const DiscTree& disc, bool) { return InfoReport(disc, ready.probe, options); });
}

int RunCheck(const Request& request, int& argc, char** argv) {
  ProbeReady ready(argc, argv);
  const CheckOptions options{request.Has("json"), request.Has("strict"), request.Has("deep"),
                             request.Has("sarif")};
  const bool dryRun = request.Has("dry-run");
  if (dryRun || request.Has("fix"))
    return Report(request, 0,
                  [&](const DiscTree& disc, bool) { return FixReport(disc, ready.probe, dryRun); });
  const auto check = [&](const DiscTree& disc, bool) { return CheckReport(disc, ready.probe, options); };
  if (!options.sarif) return Report(request, 0, check);
  std::ostringstream results;
  const int status = Report(request, 0, check, results);
  std::cout << SarifLog(results.str(), (status & kUnread) == 0, ORVANTA_VERSION);
  return status;
}

int RunTree(const Request& request, int&, char**) {
  const HeldSignals held;
  return Report(request, 0,
                [&](const DiscTree& disc, bool many) { return TreeReport(disc, request.Has("json"), many); });
}

int RunFind(const Request& request, int&, char**) {
  const HeldSignals held;
  std::atomic<bool> found = false;
  const int status = Report(request, 1, [&](const DiscTree& disc, bool) {
    DiscReport report = FindReport(disc, request.words[0], request.Has("json"));
    found = found || (report.problem.empty() && !report.faults);
    report.faults = false;
    return report;
  });
  return found ? status : status | kFaults;
}

int RunDiff(const Request& request, int& argc, char** argv) {
  ProbeReady ready(argc, argv);
  ManyDiscs run{.discs = {request.words[1]},
                .json = request.Has("json"),
                .out = std::cout,
                .err = std::cerr,
                .stop = EndPending};
  return ReportDiscs(run, [&](const std::string&) -> DiscReport {
    std::string problem;
    const auto before = OpenTree(request.words[0], problem);
    const auto after = before ? OpenTree(request.words[1], problem) : nullptr;
    return after ? DiffReport(*before, *after, ready.probe, request.Has("json")) : DiscReport{{}, problem};
  });
}

}  // namespace orvanta
