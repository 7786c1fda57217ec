#include "platform/desktop/start/FileStarter.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/AsciiText.h"
#include "platform/DosBox.h"
#include "platform/FileKind.h"
#include "platform/Runner.h"
#include "platform/desktop/Descriptor.h"
#include "platform/desktop/start/DefaultApplication.h"
#include "platform/desktop/start/WineDisc.h"

namespace orvanta {
namespace {

using Arguments = std::vector<std::string>;

/// A program that fails within this time counts as not started.
constexpr Watching Patience{.time = std::chrono::milliseconds(500)};
/// Without its 32-bit half Wine 8 takes longer to give up, and then reports success.
constexpr Watching PatienceWithoutHalf{.time = std::chrono::seconds(10), .anyEnd = true};
/// The first Windows program of a user waits until Wine has filled its prefix.
constexpr std::chrono::seconds TimeForPrefix{120};

/// The scheme of an address to be opened as such; empty for anything else.
std::string_view SchemeOf(std::string_view text) {
  constexpr std::array<std::string_view, 3> Schemes = {"http", "https", "mailto"};
  const std::string_view before = text.substr(0, text.find(':'));
  const auto known = std::ranges::find_if(Schemes, [&](std::string_view scheme) {
    return before.size() < text.size() && EqualNoCaseAscii(before, scheme);
  });
  return known == Schemes.end() ? std::string_view() : *known;
}

Arguments HostPaths(const std::vector<StartArgument>& arguments) {
  Arguments paths;
  for (const auto& [text, file] : arguments) paths.push_back(file.empty() ? text : file.string());
  return paths;
}

Arguments Joined(Arguments first, const Arguments& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

}  // namespace

FileStarter::FileStarter(std::filesystem::path disc, std::vector<std::string> forPrograms)
    : disc_(std::move(disc)), environment_(std::move(forPrograms)) {}

std::int32_t FileStarter::Start(const StartRequest& request) {
  const auto code = [&] {
    const std::string_view scheme = SchemeOf(request.name);
    if (!scheme.empty()) return OpenWithApplication(AddressTarget(scheme, request.name));
    if (request.status == StartRequest::Status::FileMissing) return StartCode::FileNotFound;
    if (request.status == StartRequest::Status::FolderMissing) return StartCode::PathNotFound;
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(request.file, error);
    return error ? CodeOfError(error.value()) : StartFound(path, request);
  }();
  if (latest_.IsOver()) return static_cast<std::int32_t>(code);
  watches_.emplace(++number_, std::exchange(latest_, {}));
  return number_;
}

std::int32_t FileStarter::Result(std::int32_t start) {
  const auto watch = watches_.find(start);
  if (watch == watches_.end()) return start;
  const bool failed = watch->second.HasFailed();
  if (watch->second.IsOver()) watches_.erase(watch);
  return failed ? static_cast<std::int32_t>(StartCode::BadProgram) : start;
}

StartCode FileStarter::StartFound(const std::filesystem::path& file, const StartRequest& request) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return CodeOfError(errno);
  if (S_ISDIR(status.st_mode)) return OpenFolder(file);
  // Opening a pipe or a device could have side effects.
  if (!S_ISREG(status.st_mode)) return StartCode::AccessDenied;
  const Descriptor opened(open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!opened) return CodeOfError(errno);
  const bool executable = (status.st_mode & (S_IXUSR | S_IXGRP | S_IXOTH)) != 0;
  const FileFacts facts = FactsOf(BytesOfFile(file), file, executable);
  const Runner runner = FindRunner(facts, SearchPath());
  const auto native = [&] {
    return Run(Joined({file}, HostPaths(request.arguments)), environment_, Patience);
  };
  switch (facts.kind) {
    case FileKind::Native: return runner.missing.empty() ? native() : StartCode::LibraryNotFound;
    case FileKind::Script: return runner.missing.empty() ? native() : StartCode::IncompleteAssociation;
    case FileKind::Windows16:
    case FileKind::Windows32:
    case FileKind::Windows64:
    case FileKind::WindowsFile: return StartWine(runner, facts, file, request);
    case FileKind::Dos: return StartForeign(runner, DosBoxArguments(file, request, disc_));
    case FileKind::Broken: return StartCode::BadProgram;
    case FileKind::Document: break;
  }
  return OpenWithApplication(FileTarget(file));
}

StartCode FileStarter::Run(const std::vector<std::string>& command,
                           const std::vector<std::string>& environment, const Watching& watching) {
  ProcessStart start = StartProcess(command, environment, watching);
  latest_ = std::move(start.watch);
  return CodeOfError(start.error);
}

StartCode FileStarter::StartForeign(const Runner& runner, const std::vector<std::string>& arguments) {
  if (runner.path.empty()) return StartCode::NoAssociation;
  const StartCode code = Run(Joined({runner.path}, arguments), environment_, Patience);
  // The file exists, so what was not found is the runner.
  return code == StartCode::FileNotFound ? StartCode::NoAssociation : code;
}

StartCode FileStarter::StartWine(const Runner& runner, const FileFacts& facts,
                                 const std::filesystem::path& file, const StartRequest& request) {
  if (runner.path.empty()) return StartCode::NoAssociation;
  const WineDisc disc(disc_, environment_);
  if (disc.Error() != 0) return CodeOfError(disc.Error());
  Arguments arguments{file};
  if (facts.kind == FileKind::WindowsFile || facts.isConsole) {
    // Wine's `start` opens what is not a program, and gives a console program a window. Without `/d` it would
    // enter the file's folder.
    std::error_code error;
    const std::filesystem::path here = std::filesystem::current_path(error);
    arguments = {"start", "/d", disc.WindowsPath(here), "/unix", file};
  }
  for (const StartArgument& argument : request.arguments) arguments.push_back(disc.Argument(argument));
  Watching watching = runner.missing.empty() ? Patience : PatienceWithoutHalf;
  if (disc.IsNew()) watching.time += TimeForPrefix;
  const StartCode code = Run(disc.Command(runner.path, arguments), disc.Environment(), watching);
  return code == StartCode::FileNotFound ? StartCode::NoAssociation : code;
}

StartCode FileStarter::OpenFolder(const std::filesystem::path& folder) const {
  if (access(folder.c_str(), R_OK | X_OK) != 0) return StartCode::AccessDenied;
  const StartCode code = OpenWithApplication(FolderTarget(folder));
  const bool nothingOpensIt = code == StartCode::NoAssociation || code == StartCode::IncompleteAssociation;
  return nothingOpensIt ? StartCode::AccessDenied : code;
}

StartCode FileStarter::OpenWithApplication(const OpenTarget& target) const {
  const ApplicationCommand command = FindApplication(target, SearchPath());
  switch (command.state) {
    case ApplicationCommand::State::NotRegistered: return StartCode::NoAssociation;
    case ApplicationCommand::State::Missing: return StartCode::IncompleteAssociation;
    case ApplicationCommand::State::Found: break;
  }
  const StartCode code = CodeOfError(StartProcess(command.arguments, environment_).error);
  // The document exists, so what was not found is the application.
  return code == StartCode::FileNotFound ? StartCode::IncompleteAssociation : code;
}

std::string_view FileStarter::SearchPath() const {
  constexpr std::string_view Name = "PATH=";
  constexpr std::string_view Usual = "/usr/local/bin:/usr/bin:/bin";
  const auto path =
      std::ranges::find_if(environment_, [&](const auto& entry) { return entry.starts_with(Name); });
  return path == environment_.end() ? Usual : std::string_view(*path).substr(Name.size());
}

}  // namespace orvanta
