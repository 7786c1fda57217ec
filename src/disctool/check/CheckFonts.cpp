// Checks the names of fonts. Only names in the disc's own font files are sure to work.

#include <algorithm>
#include <string>
#include <vector>

#include "config/Windows1250.h"
#include "disctool/check/CheckJob.h"

namespace orvanta {
namespace {

constexpr const char* kSections[] = {"HEADLINE", "MENUITEM"};

/// The names in the two font files; the shell can use both for every text.
std::vector<std::string> NamesOnDisc(CheckJob& job) {
  std::vector<std::string> names;
  for (const char* section : kSections) {
    const Setting file = job.catalogue.Find(section, "FontFile");
    if (!file) continue;
    const FoundPath& found = job.files.Find(PicturePath(file.value));
    if (!found) continue;
    for (std::string& name : job.files.FontNames(found.path.native()))
      if (std::ranges::find(names, name) == names.end()) names.push_back(std::move(name));
  }
  return names;
}

}  // namespace

void CheckFonts(CheckJob& job) {
  const std::vector<std::string> names = NamesOnDisc(job);
  if (names.empty()) return;
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + name;
  for (const char* section : kSections) {
    const Setting wanted = job.catalogue.Find(section, "FontName");
    const auto isWanted = [&](const std::string& name) { return EqualNoCase(name, wanted.value); };
    if (!wanted || std::ranges::any_of(names, isWanted)) continue;
    job.findings.Warning(
        wanted.place, "font-name",
        Translated("%1 is '%2', which is not in the disc's font files (%3); the letters depend "
                   "on the fonts that a machine has",
                   Naming(section, "FontName"), wanted.value, list));
  }
}

}  // namespace orvanta
