#include "disctool/tool/Tool.h"

#include <unistd.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <iostream>
#include <optional>

#include "disctool/OutputText.h"
#include "disctool/Progress.h"
#include "disctool/command/Commands.h"
#include "disctool/disc/Catalogue.h"
#include "disctool/gallery/Gallery.h"
#include "disctool/image/DiscCache.h"
#include "disctool/making/NewDisc.h"
#include "disctool/tool/DesktopProbe.h"
#include "disctool/tool/OpenCommand.h"

namespace orvanta {

namespace {

constexpr const char* kDescription =
    "Opens, checks and archives discs for Orvanta Shell.\n\n"
    "Commands:\n"
    "  open DISC             starts the shell with a disc\n"
    "  check DISC            everything that is wrong with a disc\n"
    "  tree DISC             its menu tree\n"
    "  gallery DISC OUT      pictures of all that it shows, with a page, in the folder OUT\n"
    "  get DISC SECTION KEY  a setting, as the shell looks it up\n"
    "  new DIR               a small complete disc to start from\n\n"
    "DISC is a folder, a mounted disc or an ISO 9660 image, which is unpacked once.";

/// What the user asked for.
struct Request {
  QStringList words;  // the command, then its arguments
  QStringList options;

  std::string Word(qsizetype i) const { return words.at(i).toStdString(); }
  bool Has(const char* option) const { return options.contains(QLatin1String(option)); }
};

int Misuse(const QString& message) {
  std::cerr << "orvanta-disc: " << message.toStdString() << "\nTry 'orvanta-disc --help'.\n";
  return kMisuse;
}

/// Tells of a problem; an empty one is none.
int Outcome(const std::string& problem) {
  if (problem.empty()) return kGood;
  std::cerr << "orvanta-disc: " << Printable(problem) << '\n';
  return kFaults;
}

/// Calls `work` with a progress bar where somebody can see one.
template <class Work>
auto WithProgress(const char* title, Work work) {
  std::optional<ProgressBar> bar;
  if (isatty(STDERR_FILENO) != 0) bar.emplace(std::cerr, title);
  return work([&bar](std::uintmax_t done, std::uintmax_t all) {
    if (bar) bar->Show(done, all);
  });
}

/// Calls `work` with the folder of the disc that the user has named; an image is unpacked for it.
template <class Work>
int WithDisc(const Request& request, Work work) {
  const OpenedDisc disc = WithProgress(
      "Unpacking", [&](const Progress& progress) { return DiscCache().Open(request.Word(1), progress); });
  return disc.problem.empty() ? work(disc.folder) : Outcome(disc.problem);
}

/// Qt's opinions on the machine are no part of what a command has to say.
void Silent(QtMsgType, const QMessageLogContext&, const QString&) {}

/// Before Qt starts: pictures and fonts need no display.
int& PreparedForNoDisplay(int& argc) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(Silent);
  return argc;
}

int Open(const Request& request, int& argc, char** argv) {
  if (request.Has("clear-cache")) {
    const int status = Outcome(DiscCache().Clear());
    if (status != kGood || request.words.size() == 1) return status;
  }
  if (!ErrorsAreRead()) return Outcome(OpenInWindows(request.Word(1), argc, argv));
  return WithDisc(request,
                  [&](const std::filesystem::path& folder) { return Outcome(RunShell(folder, argc, argv)); });
}

int Check(const Request& request, int& argc, char** argv) {
  return WithDisc(request, [&](const std::filesystem::path& folder) -> int {
    const QGuiApplication application(PreparedForNoDisplay(argc), argv);
    DesktopProbe probe;
    return CheckCommand(folder, probe, {request.Has("json"), request.Has("strict")}, std::cout);
  });
}

int Tree(const Request& request, int&, char**) {
  return WithDisc(request, [&](const std::filesystem::path& folder) -> int {
    return TreeCommand(folder, request.Has("json"), std::cout, std::cerr);
  });
}

int Gallery(const Request& request, int& argc, char** argv) {
  return WithDisc(request, [&](const std::filesystem::path& folder) {
    const QGuiApplication application(PreparedForNoDisplay(argc), argv);
    return Outcome(WithProgress("Painting", [&](const Progress& progress) {
      return MakeGallery(folder, request.Word(2), progress);
    }));
  });
}

int Get(const Request& request, int&, char**) {
  return WithDisc(request, [&](const std::filesystem::path& folder) -> int {
    if (Catalogue(folder).Empty()) return Outcome(folder.string() + ": there is no disc here");
    return GetCommand(folder, request.Word(2), request.Word(3), std::cout);
  });
}

int New(const Request& request, int& argc, char** argv) {
  const QGuiApplication application(PreparedForNoDisplay(argc), argv);
  return Outcome(MakeNewDisc(request.Word(1)));
}

struct Command {
  const char* name;
  const char* arguments;
  std::array<const char*, 2> options;
  int (*run)(const Request& request, int& argc, char** argv);
};
constexpr Command kCommands[] = {
    {"open", "DISC", {"clear-cache"}, Open}, {"check", "DISC", {"json", "strict"}, Check},
    {"tree", "DISC", {"json"}, Tree},        {"gallery", "DISC OUT", {}, Gallery},
    {"get", "DISC SECTION KEY", {}, Get},    {"new", "DIR", {}, New}};

const Command* FindCommand(const QString& name) {
  for (const Command& command : kCommands)
    if (name == QLatin1String(command.name)) return &command;
  return nullptr;
}

bool Takes(const Command& command, const QString& option) {
  return std::ranges::any_of(command.options,
                             [&](const char* one) { return one && option == QLatin1String(one); });
}

int Dispatch(const Request& request, int& argc, char** argv) {
  if (request.words.isEmpty()) return Misuse("a command is missing");
  const Command* command = FindCommand(request.words.first());
  if (!command) return Misuse("there is no command '" + request.words.first() + "'");
  const bool onlyClears = request.Has("clear-cache") && request.words.size() == 1;
  const QString usage = QString("%1 %2").arg(command->name, command->arguments);
  if (request.words.size() != usage.split(' ').size() && !onlyClears)
    return Misuse("it is: orvanta-disc " + usage);
  for (const QString& option : request.options)
    if (!Takes(*command, option))
      return Misuse(QString("'%1' has no option --%2").arg(command->name, option));
  return command->run(request, argc, argv);
}

/// Nothing if the arguments have been answered already, by `status`.
std::optional<Request> Parse(int& argc, char** argv, int& status) {
  // The parser asks it for the arguments; the command makes an application of its own kind.
  QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName("orvanta-disc");
  QCoreApplication::setApplicationVersion(ORVANTA_VERSION);
  QCommandLineParser parser;
  parser.setApplicationDescription(kDescription);
  const QCommandLineOption help = parser.addHelpOption(), version = parser.addVersionOption();
  parser.addOption({"json", "Write for machines (check, tree)."});
  parser.addOption({"clear-cache", "Remove the unpacked copies of images first (open)."});
  parser.addOption({"strict", "Warnings count as faults too (check)."});
  parser.addPositionalArgument("command", "What to do.", "COMMAND");
  parser.addPositionalArgument("arguments", "What to do it with.", "[ARGUMENT...]");
  status = 0;
  if (!parser.parse(QCoreApplication::arguments())) return status = Misuse(parser.errorText()), std::nullopt;
  if (parser.isSet(version)) return std::cout << "orvanta-disc " ORVANTA_VERSION "\n", std::nullopt;
  if (parser.isSet(help)) return std::cout << parser.helpText().toStdString(), std::nullopt;
  return Request{parser.positionalArguments(), parser.optionNames()};
}

}  // namespace

int RunTool(int argc, char** argv) {
  int status = 0;
  const std::optional<Request> request = Parse(argc, argv, status);
  if (!request) return status;
  // Qt would take some of the command's words for its own.
  argc = 1;
  status = Dispatch(*request, argc, argv);
  std::cout.flush();
  return std::cout ? status : kFaults;
}

}  // namespace orvanta
