#include "disctool/command/DiscCommands.h"

#include <ostream>

#include "disctool/JsonObject.h"
#include "disctool/OutputText.h"
#include "disctool/check/Check.h"
#include "disctool/command/Sarif.h"
#include "disctool/disc/MenuTree.h"

namespace orvanta {

DiscReport CheckReport(const DiscTree& disc, DiscProbe& probe, const CheckOptions& options) {
  const Findings findings = CheckDisc(disc, probe, options.deep);
  const std::size_t faults = findings.Errors() + (options.strict ? findings.Warnings() : 0);
  if (options.sarif) return {SarifResults(findings), {}, faults > 0};
  if (!options.json) return {FindingsText(findings), {}, faults > 0};
  JsonObject json = JsonLine(disc.Name().native());
  json.Number("errors", findings.Errors()).Number("warnings", findings.Warnings());
  json.Number("notes", findings.Notes());
  return {json.Value("findings", FindingsJson(findings)).Done() + "\n", {}, faults > 0};
}

DiscReport TreeReport(const DiscTree& disc, bool json, bool heading) {
  const Catalogue catalogue(disc);
  if (catalogue.Empty()) return {{}, NoDiscIn(disc.Name())};
  const MenuTree tree = ReadMenuTree(catalogue);
  const std::string& name = disc.Name().native();
  if (json) return {JsonLine(name).Value("nodes", MenuTreeJson(tree)).Done() + "\n"};
  return {(heading ? Printable(name) + ":\n" : "") + MenuTreeText(tree)};
}

ExitStatus GetCommand(const DiscTree& disc, std::string_view section, std::string_view key,
                      std::ostream& out) {
  const std::string value = Catalogue(disc).Find(section, key).value;
  if (value.empty()) return kFaults;
  out << value << '\n';
  return kGood;
}

}  // namespace orvanta
