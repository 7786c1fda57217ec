#include "disctool/check/Findings.h"

#include <algorithm>
#include <tuple>

#include "disctool/JsonObject.h"
#include "disctool/OutputText.h"

namespace orvanta {
namespace {

const char* NameOf(Finding::Severity severity) {
  return severity == Finding::Severity::Error ? Translatable("error") : Translatable("warning");
}

}  // namespace

void Findings::Sort() {
  std::ranges::stable_sort(list_, {}, [](const Finding& finding) {
    return std::tie(finding.place.file.native(), finding.place.line);
  });
}

std::size_t Findings::Errors() const {
  return static_cast<std::size_t>(std::ranges::count(list_, Finding::Severity::Error, &Finding::severity));
}

std::string FindingsText(const Findings& findings) {
  std::string text;
  for (const Finding& finding : findings.List()) {
    text += Printable(finding.place.file.native());
    if (finding.place.line > 0) text += ":" + std::to_string(finding.place.line);
    text.append(": ").append(Translated(NameOf(finding.severity))).append(": ") +=
        Printable(finding.text) + "\n";
  }
  return text;
}

std::string FindingsJson(const Findings& findings) {
  std::vector<std::string> list;
  for (const Finding& finding : findings.List()) {
    JsonObject json;
    json.Text("file", finding.place.file.native()).Number("line", finding.place.line);
    json.Text("severity", NameOf(finding.severity)).Text("id", finding.id);
    list.push_back(json.Text("text", finding.text).Done());
  }
  return JsonArray(list);
}

}  // namespace orvanta
