// Finds text in the files that the lookup reads differently from how it looks.

#include <algorithm>
#include <string>
#include <unordered_map>

#include "config/ProfileString.h"
#include "config/Windows1250.h"
#include "disctool/check/CheckJob.h"

namespace orvanta {
namespace {

using Kind = IniRemark::Kind;

struct RemarkText {
  Kind kind;
  Finding::Severity severity;
  FindingId id;
  const char* text;
};

constexpr auto kError = Finding::Severity::Error;
constexpr auto kWarning = Finding::Severity::Warning;
constexpr RemarkText kTexts[] = {
    {Kind::Utf16, kError, "utf-16",
     Translatable("the file is written in UTF-16, of which the shell can read nothing; save it as "
                  "Windows-1250. Nothing else was checked")},
    {Kind::ByteOrderMark, kError, "byte-order-mark",
     Translatable("the file begins with a byte order mark, which hides its first section; save it as "
                  "Windows-1250. Nothing else was checked")},
    {Kind::MixedLineEnds, kWarning, "mixed-line-ends",
     Translatable("the lines from here on do not all end like those before; give all of them CR LF")},
    {Kind::NoBracket, kWarning, "no-bracket", Translatable("the section's name has no closing bracket")},
    {Kind::NoEquals, kWarning, "no-equals", Translatable("a line without an equals sign is ignored")},
    {Kind::NoKey, kWarning, "no-key", Translatable("there is no key before the equals sign")},
    {Kind::AboveSections, kWarning, "above-sections",
     Translatable("a key above the first section is never read")},
    {Kind::NulByte, kWarning, "nul-byte", Translatable("a NUL byte ends the value here")},
    {Kind::Utf8, kError, "utf-8",
     Translatable("the text looks like UTF-8; the shell reads it as Windows-1250")},
    {Kind::OutsideCodePage, kWarning, "outside-code-page",
     Translatable("a byte here has no character in Windows-1250")},
};

bool HidesTheFile(const IniRemark& remark) {
  return remark.kind == Kind::Utf16 || remark.kind == Kind::ByteOrderMark;
}

/// One finding for each kind: a file in the wrong encoding is one fault, not one in every line.
void Remarks(CheckJob& job, const Catalogue::File& file) {
  for (const RemarkText& text : kTexts) {
    int count = 0, first = 0;
    for (const IniRemark& remark : file.ini.remarks)
      if (remark.kind == text.kind && count++ == 0) first = remark.line;
    if (count == 0) continue;
    std::string message = Translated(text.text);
    if (count > 1)
      message += TranslatedCount(" (and in one more line)", " (and in %1 more lines)",
                                 static_cast<std::size_t>(count - 1));
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
        Translated("[%1] already begins in line %2; nothing here is read", name, first->line));
    return;
  }
  for (const IniEntry& entry : section.entries) {
    const std::string naming = Naming(name, FromWindows1250(entry.key));
    if (const IniEntry* before = section.Find(entry.key); before != &entry) {
      job.findings.Warning(
          {file.path, entry.line}, "key-twice",
          Translated("%1 is already in line %2; this one is never read", naming, before->line));
    } else if (entry.length > static_cast<std::size_t>(kLongestValue)) {
      job.findings.Warning({file.path, entry.line}, "value-cut",
                           Translated("%1 is %2 characters long; it is cut off after %3", naming,
                                      entry.length, kLongestValue));
    }
  }
}

}  // namespace

bool CheckEncoding(CheckJob& job) {
  bool readable = true;
  for (const Catalogue::File& file : job.catalogue.Files()) {
    const auto hidden = std::ranges::find_if(file.ini.remarks, HidesTheFile);
    if (hidden == file.ini.remarks.end()) continue;
    const auto text = std::ranges::find(kTexts, hidden->kind, &RemarkText::kind);
    job.findings.Error({file.path, 0}, text->id, Translated(text->text));
    readable = false;
  }
  return readable;
}

void CheckLines(CheckJob& job) {
  for (const Catalogue::File& file : job.catalogue.Files()) {
    if (file.tooLarge)
      job.findings.Error({file.path, 0}, "file-too-large",
                         Translated("the file is too large for a configuration file"));
    if (file.unreadable)
      job.findings.Error({file.path, 0}, "unreadable", Translated("the file cannot be read"));
    Remarks(job, file);
    for (const IniSection& section : file.ini.sections) Section(job, file, section);
  }
}

}  // namespace orvanta
