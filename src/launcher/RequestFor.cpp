#include "launcher/RequestFor.h"

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

/// A word that begins with the disc's drive may name something on it; every other word is the program's own.
std::vector<StartArgument> ArgumentsOf(const std::string& parameters, const DiscDrive& drive) {
  std::vector<StartArgument> arguments;
  for (const std::string& word : SplitArguments(parameters))
    arguments.push_back({word, HasDrive(word) ? drive.Find(word).path : std::filesystem::path()});
  return arguments;
}

}  // namespace

StartRequest RequestFor(const std::string& file, const std::string& parameters, const DiscDrive& drive) {
  const FoundPath found = drive.Find(file);
  return {StatusOf(found.outcome), file, found.path, parameters, ArgumentsOf(parameters, drive)};
}

}  // namespace orvanta
