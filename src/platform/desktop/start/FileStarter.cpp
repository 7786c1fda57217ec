#include "platform/desktop/start/FileStarter.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "platform/CommandLine.h"
#include "platform/FileKind.h"
#include "platform/Runner.h"
#include "platform/desktop/Descriptor.h"
#include "platform/desktop/start/DefaultApplication.h"

namespace orvanta {
namespace {

using Arguments = std::vector<std::string>;

bool SameLetter(char a, char b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
  return lower(a) == lower(b);
}

/// The scheme of an address that is opened as such; empty for everything else.
std::string_view SchemeOf(std::string_view text) {
  constexpr std::array<std::string_view, 3> Schemes = {"http", "https", "mailto"};
  const std::string_view before = text.substr(0, text.find(':'));
  const auto known = std::ranges::find_if(Schemes, [&](std::string_view scheme) {
    return before.size() < text.size() && std::ranges::equal(before, scheme, SameLetter);
  });
  return known == Schemes.end() ? std::string_view() : *known;
}

Arguments Joined(Arguments first, const Arguments& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

/// DOSBox takes a program's path, and the program's arguments only as a line for its own prompt.
Arguments DosBoxArguments(const std::filesystem::path& file, std::string_view parameters) {
  if (SplitArguments(parameters).empty()) return {file, "-exit"};
  return {"-c", "mount C \"" + file.parent_path().string() + "\"",        "-c", "C:",
          "-c", file.filename().string() + " " + std::string(parameters), "-c", "exit"};
}

}  // namespace

FileStarter::FileStarter(std::vector<std::string> forPrograms) : environment(std::move(forPrograms)) {}

std::int32_t FileStarter::Start(const StartRequest& request) const {
  const auto code = [&] {
    const std::string_view scheme = SchemeOf(request.name);
    if (!scheme.empty()) return OpenWithApplication(AddressTarget(scheme, request.name));
    if (request.status == StartRequest::Status::FileMissing) return StartCode::FileNotFound;
    if (request.status == StartRequest::Status::FolderMissing) return StartCode::PathNotFound;
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(request.file, error);
    return error ? CodeOfError(error.value()) : StartFound(path, request.parameters);
  }();
  return static_cast<std::int32_t>(code);
}

StartCode FileStarter::StartFound(const std::filesystem::path& file, std::string_view parameters) const {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return CodeOfError(errno);
  if (S_ISDIR(status.st_mode)) return OpenFolder(file);
  // Pipes and devices would be opened for their effect.
  if (!S_ISREG(status.st_mode)) return StartCode::AccessDenied;
  const Descriptor opened(open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!opened) return CodeOfError(errno);
  const bool executable = (status.st_mode & (S_IXUSR | S_IXGRP | S_IXOTH)) != 0;
  const FileFacts facts = FactsOf(BytesOfFile(file), file, executable);
  const Runner runner = FindRunner(facts, SearchPath());
  switch (facts.kind) {
    case FileKind::Native:
      return runner.missing.empty() ? StartNative(file, parameters) : StartCode::LibraryNotFound;
    case FileKind::Script:
      return runner.missing.empty() ? StartNative(file, parameters) : StartCode::IncompleteAssociation;
    case FileKind::Windows16:
    case FileKind::Windows32:
    case FileKind::Windows64: return StartForeign(runner, Joined({file}, SplitArguments(parameters)));
    case FileKind::WindowsFile:
      return StartForeign(runner, Joined({"start", "/unix", file}, SplitArguments(parameters)));
    case FileKind::Dos: return StartForeign(runner, DosBoxArguments(file, parameters));
    case FileKind::Broken: return StartCode::BadProgram;
    case FileKind::Document: break;
  }
  return OpenWithApplication(FileTarget(file));
}

StartCode FileStarter::StartNative(const std::filesystem::path& file, std::string_view parameters) const {
  return CodeOfError(StartProcess(Joined({file}, SplitArguments(parameters)), environment));
}

StartCode FileStarter::StartForeign(const Runner& runner, const std::vector<std::string>& arguments) const {
  if (runner.path.empty()) return StartCode::NoAssociation;
  const StartCode code = CodeOfError(StartProcess(Joined({runner.path}, arguments), environment));
  // The file is there; what was not found is the runner.
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
  const StartCode code = CodeOfError(StartProcess(command.arguments, environment));
  // The document is there; what was not found is the application.
  return code == StartCode::FileNotFound ? StartCode::IncompleteAssociation : code;
}

std::string_view FileStarter::SearchPath() const {
  constexpr std::string_view Name = "PATH=";
  constexpr std::string_view Usual = "/usr/local/bin:/usr/bin:/bin";
  const auto path =
      std::ranges::find_if(environment, [&](const auto& entry) { return entry.starts_with(Name); });
  return path == environment.end() ? Usual : std::string_view(*path).substr(Name.size());
}

}  // namespace orvanta
