#include "disctool/command/DiscCommands.h"

#include <ostream>

#include "disctool/OutputText.h"
#include "disctool/check/Check.h"
#include "disctool/disc/MenuTree.h"

namespace orvanta {

ExitStatus CheckCommand(const DiscTree& disc, DiscProbe& probe, const CheckOptions& options,
                        std::ostream& out) {
  const Findings findings = CheckDisc(disc, probe);
  out << (options.json ? FindingsJson(findings) : FindingsText(findings));
  const std::size_t faults = options.strict ? findings.List().size() : findings.Errors();
  return faults == 0 ? kGood : kFaults;
}

ExitStatus TreeCommand(const DiscTree& disc, bool json, std::ostream& out, std::ostream& err) {
  const Catalogue catalogue(disc);
  if (catalogue.Empty()) {
    err << "orvanta-disc: " << Printable(NoDiscIn(disc.Name())) << '\n';
    return kFaults;
  }
  const MenuTree tree = ReadMenuTree(catalogue);
  out << (json ? MenuTreeJson(tree) : MenuTreeText(tree));
  return kGood;
}

ExitStatus GetCommand(const DiscTree& disc, std::string_view section, std::string_view key,
                      std::ostream& out) {
  const std::string value = Catalogue(disc).Find(section, key).value;
  if (value.empty()) return kFaults;
  out << value << '\n';
  return kGood;
}

}  // namespace orvanta
