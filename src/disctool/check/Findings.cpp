#include "disctool/check/Findings.h"

#include <algorithm>
#include <tuple>

#include "disctool/JsonObject.h"
#include "disctool/OutputText.h"

namespace orvanta {

const char* NameOf(Finding::Severity severity) {
  switch (severity) {
    case Finding::Severity::Error: return Translatable("error");
    case Finding::Severity::Warning: return Translatable("warning");
    case Finding::Severity::Note: break;
  }
  return Translatable("note");
}

void Findings::Sort() {
  std::ranges::stable_sort(list_, {}, [](const Finding& finding) {
    return std::tie(finding.place.file.native(), finding.place.line);
  });
}

std::size_t Findings::Count(Finding::Severity severity) const {
  return static_cast<std::size_t>(std::ranges::count(list_, severity, &Finding::severity));
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
