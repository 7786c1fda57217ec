#include "disctool/check/Check.h"

#include <utility>

#include "config/Values.h"
#include "config/Windows1250.h"
#include "disctool/check/CheckJob.h"

namespace orvanta {

double CheckJob::Number(std::string_view section, std::string_view key) const {
  return DoubleOf(catalogue.Find(section, key).value);
}

std::optional<Size> CheckJob::PictureOf(std::string_view section, std::string_view key,
                                        std::string_view ending) {
  const Setting value = catalogue.Find(section, key);
  if (!value) return std::nullopt;
  const FoundPath& found = files.Find(PicturePath(value.value + std::string(ending)));
  return found ? files.PictureSize(found.path.native()) : std::nullopt;
}

std::string_view FixedSection(std::string_view name) {
  std::string_view last = kNodeSection;
  for (const SchemaKey& key : kSchema)
    if (key.section != kNodeSection && key.section != std::exchange(last, key.section) &&
        key.section.size() == name.size() && EqualNoCase(key.section, name))
      return key.section;
  return {};
}

std::string Naming(std::string_view section, std::string_view key) {
  return Translated("%1 of [%2]", key, section);
}

std::string PicturePath(std::string_view value) {
  return std::string(Catalogue::kDiscRoot) + "Data\\" + std::string(value);
}

Findings CheckDisc(const DiscTree& disc, DiscProbe& probe, bool deep) {
  Findings findings;
  const Catalogue catalogue(disc);
  if (catalogue.Empty()) {
    findings.Error({disc.Name(), 0}, "no-disc", NoDisc());
    return findings;
  }
  const MenuTree tree = ReadMenuTree(catalogue);
  DiscFiles files(disc, probe);
  CheckJob job{disc, catalogue, tree, files, findings, deep};
  if (!CheckEncoding(job)) return findings;
  for (auto* part : {CheckLines, CheckSettings, CheckTree, CheckUnread, CheckFiles, CheckPrograms, CheckFonts,
                     CheckLinks, CheckLayout})
    part(job);
  findings.Sort();
  return findings;
}

}  // namespace orvanta
