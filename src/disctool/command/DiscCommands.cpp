#include "disctool/command/DiscCommands.h"

#include <ostream>

#include "config/Settings.h"
#include "disctool/OutputText.h"
#include "disctool/check/Check.h"
#include "disctool/disc/MenuTree.h"

namespace orvanta {

ExitStatus CheckCommand(const std::filesystem::path& disc, DiscProbe& probe, const CheckOptions& options,
                        std::ostream& out) {
  const Findings findings = CheckDisc(disc, probe);
  out << (options.json ? FindingsJson(findings) : FindingsText(findings));
  const std::size_t faults = options.strict ? findings.List().size() : findings.Errors();
  return faults == 0 ? kGood : kFaults;
}

ExitStatus TreeCommand(const std::filesystem::path& disc, bool json, std::ostream& out, std::ostream& err) {
  const Catalogue catalogue(disc);
  if (catalogue.Empty()) {
    err << "orvanta-disc: " << Printable(NoDiscIn(disc)) << '\n';
    return kFaults;
  }
  const MenuTree tree = ReadMenuTree(catalogue);
  out << (json ? MenuTreeJson(tree) : MenuTreeText(tree));
  return kGood;
}

ExitStatus GetCommand(const std::filesystem::path& disc, std::string_view section, std::string_view key,
                      std::ostream& out) {
  const INI_Read ini{std::string(Catalogue::kDiscRoot), DiscDrive(disc)};
  const std::string value = ini.IniRead(section, key, kMenuFile);
  if (value.empty()) return kFaults;
  out << value << '\n';
  return kGood;
}

}  // namespace orvanta
