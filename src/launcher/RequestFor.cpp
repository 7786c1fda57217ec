#include "launcher/RequestFor.h"

#include <fstream>
#include <optional>
#include <system_error>

#include "launcher/Shortcut.h"
#include "platform/CommandLine.h"

namespace orvanta {
namespace {

StartRequest::Status StatusOf(FoundPath::Outcome outcome) {
  switch (outcome) {
    case FoundPath::Outcome::Found: return StartRequest::Status::Found;
    case FoundPath::Outcome::FileMissing: return StartRequest::Status::FileMissing;
    case FoundPath::Outcome::FolderMissing: break;
  }
  return StartRequest::Status::FolderMissing;
}

/// A word that begins with the disc's drive may name something on it; every other word belongs to the
/// program.
std::vector<StartArgument> ArgumentsOf(const std::string& parameters, const DiscDrive& drive) {
  std::vector<StartArgument> arguments;
  for (const std::string& word : SplitArguments(parameters))
    arguments.push_back({word, HasDrive(word) ? drive.Find(word).path : std::filesystem::path()});
  return arguments;
}

StartRequest PlainRequest(const std::string& file, const std::string& parameters, const DiscDrive& drive) {
  const FoundPath found = drive.Find(file);
  return {StatusOf(found.outcome), file, found.path, parameters, ArgumentsOf(parameters, drive)};
}

/// The request for the target of a shortcut; nothing if that is not on the disc, so that the host has to
/// follow it.
std::optional<StartRequest> Followed(const StartRequest& shortcut, const DiscDrive& drive) {
  // Opening a pipe would wait for its writer.
  std::error_code error;
  if (!std::filesystem::is_regular_file(shortcut.file, error)) return std::nullopt;
  std::string bytes(LargestShortcut + 1, '\0');
  std::ifstream stream(shortcut.file, std::ios::binary);
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(stream.gcount()));
  const auto read = ReadShortcut(shortcut.name, bytes);
  if (!read) return std::nullopt;
  if (!read->address.empty()) return StartRequest{.name = read->address};
  const std::string parameters =
      read->arguments + (shortcut.parameters.empty() ? "" : " " + shortcut.parameters);
  for (const std::string& target : read->targets) {
    StartRequest request = PlainRequest(target, parameters, drive);
    if (request.status == StartRequest::Status::Found) return request;
  }
  return std::nullopt;
}

}  // namespace

StartRequest RequestFor(const std::string& file, const std::string& parameters, const DiscDrive& drive) {
  StartRequest request = PlainRequest(file, parameters, drive);
  if (request.status == StartRequest::Status::Found && IsShortcut(file))
    if (auto followed = Followed(request, drive)) return *std::move(followed);
  return request;
}

}  // namespace orvanta
