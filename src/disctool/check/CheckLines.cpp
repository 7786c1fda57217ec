// What stands in the files otherwise than the lookup takes it.

#include <string>
#include <unordered_map>

#include "config/ProfileString.h"
#include "config/Windows1250.h"
#include "disctool/check/CheckParts.h"

namespace orvanta {
namespace {

using Kind = IniRemark::Kind;

struct RemarkText {
  Kind kind;
  Finding::Severity severity;
  std::string_view id, text;
};

constexpr auto kError = Finding::Severity::Error;
constexpr auto kWarning = Finding::Severity::Warning;
constexpr RemarkText kTexts[] = {
    {Kind::ByteOrderMark, kError, "byte-order-mark",
     "the file begins with a byte order mark, which hides its first section; save it as Windows-1250"},
    {Kind::NoBracket, kWarning, "no-bracket", "the section's name has no closing bracket"},
    {Kind::NoEquals, kWarning, "no-equals", "a line without an equals sign is passed over"},
    {Kind::NoKey, kWarning, "no-key", "there is no key before the equals sign"},
    {Kind::AboveSections, kWarning, "above-sections", "a key above the first section is never read"},
    {Kind::NulByte, kWarning, "nul-byte", "a NUL byte ends the value here"},
    {Kind::Utf8, kError, "utf-8", "the text looks like UTF-8; the shell reads it as Windows-1250"},
    {Kind::OutsideCodePage, kWarning, "outside-code-page",
     "a byte here stands for no character of Windows-1250"},
};

/// One finding for each kind: a file in a wrong encoding is one fault, not one in every line.
void Remarks(CheckJob& job, const Catalogue::File& file) {
  for (const RemarkText& text : kTexts) {
    int count = 0, first = 0;
    for (const IniRemark& remark : file.ini.remarks)
      if (remark.kind == text.kind && count++ == 0) first = remark.line;
    if (count == 0) continue;
    std::string message(text.text);
    if (count > 1) message += " (and in " + std::to_string(count - 1) + " more lines)";
    if (text.severity == kError) {
      job.findings.Error({file.path, first}, text.id, message);
    } else {
      job.findings.Warning({file.path, first}, text.id, message);
    }
  }
}

void Section(CheckJob& job, const Catalogue::File& file, const IniSection& section) {
  const IniSection* first = file.ini.Find(section.name);
  const std::string name = FromWindows1250(section.name);
  if (first != &section) {
    job.findings.Warning(
        {file.path, section.line}, "section-twice",
        "[" + name + "] begins in line " + std::to_string(first->line) + " already; nothing here is read");
    return;
  }
  for (const IniEntry& entry : section.entries) {
    const std::string naming = Naming(name, FromWindows1250(entry.key));
    if (const IniEntry* before = section.Find(entry.key); before != &entry) {
      job.findings.Warning(
          {file.path, entry.line}, "key-twice",
          naming + " stands in line " + std::to_string(before->line) + " already; this one is never read");
    } else if (entry.length > static_cast<std::size_t>(kLongestValue)) {
      job.findings.Warning({file.path, entry.line}, "value-cut",
                           naming + " is " + std::to_string(entry.length) +
                               " characters long; it is cut after " + std::to_string(kLongestValue));
    }
  }
}

}  // namespace

void CheckLines(CheckJob& job) {
  for (const Catalogue::File& file : job.catalogue.Files()) {
    if (file.tooLarge)
      job.findings.Error({file.path, 0}, "file-too-large", "the file is too large for a disc's");
    if (file.unreadable) job.findings.Error({file.path, 0}, "unreadable", "the file cannot be read");
    Remarks(job, file);
    for (const IniSection& section : file.ini.sections) Section(job, file, section);
  }
}

}  // namespace orvanta
