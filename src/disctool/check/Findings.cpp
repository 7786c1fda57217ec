#include "disctool/check/Findings.h"

#include <algorithm>
#include <tuple>

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
  std::string text = "{\"errors\": " + std::to_string(findings.Errors()) +
                     ", \"warnings\": " + std::to_string(findings.Warnings()) + ", \"findings\": [";
  bool first = true;
  for (const Finding& finding : findings.List()) {
    text += first ? "\n" : ",\n";
    first = false;
    text += "  {\"file\": " + JsonText(finding.place.file.native()) +
            ", \"line\": " + std::to_string(finding.place.line);
    text.append(", \"severity\": \"").append(NameOf(finding.severity));
    text.append("\", \"id\": \"").append(finding.id).append("\", \"text\": ") += JsonText(finding.text) + "}";
  }
  return text + "\n]}\n";
}

}  // namespace orvanta
