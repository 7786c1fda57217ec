#include "disctool/command/FixCommand.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "disctool/Translation.h"
#include "disctool/check/Fixes.h"
#include "disctool/disc/Catalogue.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// Copies the file to a free name beside it. Returns what went wrong; empty on success.
std::string KeepOld(const fs::path& file) {
  constexpr int kMost = 1000;
  std::error_code error;
  for (int i = 1; i <= kMost; ++i) {
    const fs::path old = file.native() + ".old" + (i == 1 ? "" : std::to_string(i));
    if (fs::exists(fs::symlink_status(old, error))) continue;
    return fs::copy_file(file, old, error) ? "" : old.native() + ": " + error.message();
  }
  return file.native() + ": " + Translated("there are too many old files beside it");
}

/// Replaces the file; at every moment it is either the old or the new one.
std::string Replace(const fs::path& file, const std::string& bytes) {
  const fs::path part = file.native() + ".part";
  std::error_code error;
  const fs::perms permissions = fs::status(file, error).permissions();
  std::ofstream out(part, std::ios::binary);
  out << bytes;
  out.close();
  if (!out) {
    fs::remove(part, error);
    return part.native() + ": " + Translated("the file cannot be written");
  }
  fs::permissions(part, permissions, error);
  fs::rename(part, file, error);
  return error ? file.native() + ": " + error.message() : std::string();
}

/// Writes the mended file. If it is a link, the target is mended.
std::string Write(const fs::path& named, const std::string& bytes) {
  std::error_code error;
  const fs::path file = fs::canonical(named, error);
  if (error) return named.native() + ": " + error.message();
  std::string problem = KeepOld(file);
  return problem.empty() ? Replace(file, bytes) : problem;
}

}  // namespace

DiscReport FixReport(const DiscTree& disc, DiscProbe& probe, bool dryRun) {
  std::error_code error;
  if (!fs::is_directory(disc.Name(), error))
    return {{}, disc.Name().native() + ": " + Translated("only a disc that is a folder can be mended")};
  if (Catalogue(disc).Empty()) return {{}, NoDiscIn(disc.Name())};
  DiscReport report;
  for (const FileFix& fix : PlanFixes(disc, probe)) {
    report.text += FixText(disc, fix);
    report.faults = report.faults || dryRun || !fix.problem.empty();
    if (dryRun || !fix.problem.empty()) continue;
    if (std::string problem = Write(disc.Place(fix.path), fix.bytes); !problem.empty())
      report.problem = problem;
  }
  return report;
}

}  // namespace orvanta
