#include "disctool/command/Sarif.h"

#include <sstream>
#include <vector>

#include "disctool/JsonObject.h"

namespace orvanta {
namespace {

/// A path as a URI reference (RFC 3986); an absolute path gets its scheme.
std::string UriOf(const std::filesystem::path& file) {
  constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string uri = file.is_absolute() ? "file://" : "";
  for (const char c : file.native()) {
    const auto byte = static_cast<unsigned char>(c);
    if (kPlain.find(c) != kPlain.npos) {
      uri += c;
    } else {
      uri += '%';
      uri += kDigits[byte >> 4];
      uri += kDigits[byte & 15];
    }
  }
  return uri;
}

std::string Message(std::string_view text) { return JsonObject().Text("text", text).Done(); }

std::string Location(const DiscPlace& place) {
  JsonObject physical;
  physical.Value("artifactLocation", JsonObject().Text("uri", UriOf(place.file)).Done());
  if (place.line > 0) physical.Value("region", JsonObject().Number("startLine", place.line).Done());
  return JsonObject().Value("physicalLocation", physical.Done()).Done();
}

std::string Rules() {
  std::vector<std::string> rules;
  for (const FindingInfo& info : kFindings) {
    JsonObject rule;
    rule.Text("id", info.id).Value("shortDescription", Message(info.meaning));
    rules.push_back(rule.Value("help", Message(info.remedy)).Done());
  }
  return JsonArray(rules);
}

}  // namespace

std::string SarifResults(const Findings& findings) {
  std::string lines;
  for (const Finding& finding : findings.List()) {
    JsonObject result;
    result.Text("ruleId", finding.id).Text("level", NameOf(finding.severity));
    result.Value("message", Message(finding.text));
    const std::string location = Location(finding.place);
    lines += result.Value("locations", JsonArray({&location, 1})).Done() + "\n";
  }
  return lines;
}

std::string SarifLog(const std::string& results, bool complete, const std::string& toolVersion) {
  std::vector<std::string> list;
  std::istringstream lines(results);
  for (std::string line; std::getline(lines, line);) list.push_back(line);
  JsonObject driver, run;
  driver.Text("name", "orvanta-disc").Text("version", toolVersion).Value("rules", Rules());
  run.Value("tool", JsonObject().Value("driver", driver.Done()).Done());
  const std::string invocation = JsonObject().Flag("executionSuccessful", complete).Done();
  run.Value("invocations", JsonArray({&invocation, 1})).Value("results", JsonArray(list));
  const std::string runs = run.Done();
  JsonObject log;
  log.Text("$schema", "https://json.schemastore.org/sarif-2.1.0.json").Text("version", "2.1.0");
  return log.Value("runs", JsonArray({&runs, 1})).Done() + "\n";
}

}  // namespace orvanta
