#include "disctool/tool/Tool.h"

#include <QGuiApplication>
#include <algorithm>
#include <iostream>
#include <optional>

#include "disctool/OutputText.h"
#include "disctool/Translation.h"
#include "disctool/check/Check.h"
#include "disctool/check/FindingTable.h"
#include "disctool/command/Arguments.h"
#include "disctool/command/CommandHelp.h"
#include "disctool/command/DiscCommands.h"
#include "disctool/disc/Catalogue.h"
#include "disctool/export/WebExport.h"
#include "disctool/gallery/Library.h"
#include "disctool/image/DiscCache.h"
#include "disctool/image/OpenTree.h"
#include "disctool/image/VolumeFiles.h"
#include "disctool/image/sectors/AudioTracks.h"
#include "disctool/making/NewDisc.h"
#include "disctool/tool/CommandSupport.h"
#include "disctool/tool/DesktopProbe.h"
#include "disctool/tool/OpenCommand.h"
#include "disctool/tool/ReportCommands.h"

namespace orvanta {

namespace {

namespace fs = std::filesystem;

int Misuse(const Request& request) {
  const std::string help =
      "orvanta-disc " + (request.command ? std::string(request.command->name) + " " : "") + "--help";
  std::cerr << "orvanta-disc: " << Printable(request.problem) << '\n'
            << Translated("Try '%1'.", help) << '\n';
  return kMisuse;
}

/// Calls `work` with the folder of the disc that the user has named; an image is unpacked first.
template <class Work>
int WithDisc(const Request& request, Work work) {
  const OpenedDisc disc = WithProgress(Translated("Unpacking"), [&](const Progress& progress) {
    return DiscCache(request.CacheLimit().value_or(DiscCache::kDefaultLimit))
        .Open(request.words.at(0), progress);
  });
  return disc.problem.empty() ? work(disc.folder) : Outcome(disc.problem);
}

int Open(const Request& request, int& argc, char** argv) {
  if (request.Has("clear-cache")) {
    const int status = Outcome(DiscCache().Clear());
    if (status != kGood || request.words.empty()) return status;
  }
  if (!ErrorsAreRead()) return Outcome(OpenInWindows(request, argc, argv));
  return WithDisc(request, [&](const fs::path& folder) {
    WriteVolumeFiles(request.words[0], folder);
    return Outcome(RunShell(folder, request.Zoom(), argc, argv));
  });
}

/// Writes a page or a script that the value of an option has named.
int Written(Request request, const std::string& text) {
  std::cout << text;
  if (!text.empty()) return kGood;
  request.problem = Translated("there is nothing of that name");
  return Misuse(request);
}

int Check(const Request& request, int& argc, char** argv) {
  if (request.Has("explain")) return Written(request, Explanation(request.Option("explain")));
  return RunCheck(request, argc, argv);
}

int Gallery(const Request& request, int& argc, char** argv) {
  std::string problem;
  const auto disc = OpenTree(request.words[0], problem);
  if (!disc) return Outcome(problem);
  const QGuiApplication application(PreparedForNoDisplay(argc), argv);
  DesktopProbe probe;
  const Findings findings = CheckDisc(*disc, probe);
  return Outcome(WithProgress(Translated("Taking screenshots"), [&](const Progress& progress) {
    return MakeGallery(*disc, request.words[1], findings, progress).problem;
  }));
}

int Library(const Request& request, int& argc, char** argv) {
  const QGuiApplication application(PreparedForNoDisplay(argc), argv);
  DesktopProbe probe;
  const auto make = [&probe](const fs::path& named, const fs::path& folder) -> MadeGallery {
    std::string problem;
    const auto disc = OpenTree(named, problem);
    if (!disc) return {{}, problem};
    return MakeGallery(*disc, folder, CheckDisc(*disc, probe), [](std::uintmax_t, std::uintmax_t) {});
  };
  const std::vector<fs::path> discs(request.words.begin() + 1, request.words.end());
  const auto problems = WithProgress(Translated("Taking screenshots"), [&](const Progress& progress) {
    return MakeLibrary(request.words[0], discs, make, progress);
  });
  int status = kGood;
  for (const std::string& problem : problems) status = Outcome(problem);
  return status;
}

int Export(const Request& request, int&, char**) {
  return WithDisc(request, [&](const fs::path& folder) {
    const fs::path page = request.Has("page") ? fs::path(request.Option("page")) : InstalledPage();
    const ExportResult result = WithProgress(Translated("Converting"), [&](const Progress& progress) {
      return ExportDisc(FolderTree(folder), page, request.words[1], request.Has("single-file"), progress);
    });
    int status = kGood;
    for (const std::string& problem : result.problems) status = Outcome(problem);
    return status;
  });
}

int Get(const Request& request, int&, char**) {
  std::string problem;
  const auto disc = OpenTree(request.words[0], problem);
  if (!disc) return Outcome(problem);
  if (Catalogue(*disc).Empty()) return Outcome(NoDiscIn(disc->Name()));
  return GetCommand(*disc, request.words[1], request.words[2], std::cout);
}

int Tracks(const Request& request, int&, char**) {
  return Outcome(WithProgress(Translated("Writing tracks"), [&](const Progress& progress) {
    return WriteAudioTracks(request.words[0], request.words[1], progress);
  }));
}

int New(const Request& request, int& argc, char** argv) {
  const QGuiApplication application(PreparedForNoDisplay(argc), argv);
  return Outcome(MakeNewDisc(request.words[0]));
}

struct Handler {
  std::string_view name;
  int (*run)(const Request& request, int& argc, char** argv);
};
/// One for each command in the table.
constexpr Handler kHandlers[] = {{"open", Open},       {"info", RunInfo},    {"check", Check},
                                 {"tree", RunTree},    {"find", RunFind},    {"diff", RunDiff},
                                 {"gallery", Gallery}, {"library", Library}, {"export", Export},
                                 {"get", Get},         {"tracks", Tracks},   {"new", New}};

int Dispatch(const Request& request, int& argc, char** argv) {
  if (!request.problem.empty()) return Misuse(request);
  if (request.Has("version")) return Written(request, "orvanta-disc " ORVANTA_VERSION "\n");
  if (request.Has("completion")) return Written(request, Completion(request.Option("completion")));
  if (request.Has("man")) return Written(request, ManPage(request.Option("man"), ORVANTA_VERSION));
  if (request.Has("help")) return Written(request, request.command ? HelpText(*request.command) : HelpText());
  for (const Handler& handler : kHandlers)
    if (handler.name == request.command->name) return handler.run(request, argc, argv);
  return kMisuse;
}

/// The translations are beside the program in the build folder, otherwise where they were installed.
fs::path TranslationFolder() {
  std::error_code error;
  const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  if (fs::is_directory(folder / "locale", error)) return folder / "locale";
  return folder.parent_path() / "share" / "locale";
}

}  // namespace

int RunTool(int argc, char** argv) {
  UseLanguageOfUser(TranslationFolder());
  const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
  const Request request = ParseArguments(arguments);
  // The output for other programs is the same in every language.
  if (request.Has("json") || request.Has("sarif")) UseEnglish();
  // Qt would interpret some of the command's arguments as its own.
  argc = std::min(argc, 1);
  const int status = Dispatch(request, argc, argv);
  std::cout.flush();
  return std::cout ? status : kFaults;
}

}  // namespace orvanta
