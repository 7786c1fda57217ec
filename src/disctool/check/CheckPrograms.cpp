// Finds programs that cannot run, shortcuts that lead nowhere, and files in parameters that are missing.

#include <string>

#include "config/DiscDrive.h"
#include "disctool/check/CheckJob.h"
#include "disctool/disc/EntryTarget.h"
#include "launcher/Shortcut.h"
#include "platform/CommandLine.h"

namespace orvanta {
namespace {

/// A file that an entry starts, and where it is named.
struct Started {
  const Setting& execute;
  std::string naming;
  EntryTarget target;
};

/// The file to which a shortcut leads; the shortcut itself if that is not on the disc, or is an address.
EntryTarget Followed(CheckJob& job, const Started& started) {
  const std::string& path = started.target.path;
  const auto bytes = job.disc.Read(path, 0, LargestShortcut + 1);
  const auto shortcut = bytes ? ReadShortcut(OnDrive(started.execute.value), *bytes) : std::nullopt;
  if (!shortcut || !shortcut->address.empty()) return started.target;
  for (const std::string& target : shortcut->targets)
    if (EntryTarget found = TargetOf(job.disc, target); found.place != EntryTarget::Place::Missing)
      return found;
  job.findings.Warning(started.execute.place, "dead-shortcut",
                       Translated("%1 names a shortcut whose target is not on the disc: %2", started.naming,
                                  shortcut->targets.front()));
  return started.target;
}

/// Whether the file would be a program if it were executable.
bool IsNativeCode(const DiscTree& disc, const std::string& path) {
  const std::string begin = disc.Read(path, 0, 4).value_or("");
  return begin == "\x7f\x45LF" || begin.starts_with("#!");
}

void CheckProgram(CheckJob& job, const Started& started) {
  const auto& [execute, naming, target] = started;
  const FileKind kind = target.facts.kind;
  if (kind == FileKind::Broken)
    job.findings.Error(execute.place, "no-program",
                       Translated("%1 names a program that is empty, cut short or not a program: %2", naming,
                                  execute.value));
  if (kind == FileKind::Document && IsNativeCode(job.disc, target.path))
    job.findings.Warning(execute.place, "not-executable",
                         Translated("%1 names a program that is not executable: %2", naming, execute.value));
  if (kind == FileKind::Script && target.facts.interpreter.ends_with('\r')) {
    job.findings.Error(execute.place, "script-line-ends",
                       Translated("%1 names a script whose lines end with CR LF, so its interpreter is not "
                                  "found: %2",
                                  naming, execute.value));
    return;
  }
  const Runner runner = job.files.RunnerOf(target.facts);
  if (!runner.missing.empty())
    job.findings.Note(execute.place, "no-runner",
                      Translated("%1 cannot be started on this machine: %2 (%3) needs %4, which is not "
                                 "installed",
                                 naming, execute.value, Translated(NameOf(target)), runner.missing));
}

void CheckParameters(CheckJob& job, const std::string& node) {
  const Setting parameters = job.catalogue.Find(node, "Parameters");
  for (const std::string& word : SplitArguments(parameters.value)) {
    if (word.find("%:") != word.npos)
      job.findings.Warning(
          parameters.place, "late-drive",
          Translated("%1 has a %: that is not replaced by the disc's drive, since it is not at the very "
                     "beginning: %2",
                     Naming(node, "Parameters"), word));
    const bool isPattern = word.find_first_of("*?") != word.npos;
    if (HasDrive(word) && !isPattern && TargetOf(job.disc, word).place == EntryTarget::Place::Missing)
      job.findings.Warning(
          parameters.place, "no-parameter-file",
          Translated("%1 names a file that is not there: %2", Naming(node, "Parameters"), word));
  }
}

}  // namespace

void CheckPrograms(CheckJob& job) {
  for (const MenuNode& node : job.tree.nodes) {
    if (node.kind != NodeKind::Program) continue;
    const Setting execute = job.catalogue.Find(node.name, "Execute");
    Started started{execute, Naming(node.name, "Execute"), TargetOf(job.disc, execute.value)};
    if (started.target.place == EntryTarget::Place::File) {
      if (IsShortcut(execute.value)) started.target = Followed(job, started);
      CheckProgram(job, started);
    }
    CheckParameters(job, node.name);
  }
}

}  // namespace orvanta
