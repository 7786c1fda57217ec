#include "disctool/check/Fixes.h"

#include <algorithm>
#include <map>

#include "config/Windows1250.h"
#include "disctool/OutputText.h"
#include "disctool/Translation.h"
#include "disctool/check/Check.h"
#include "disctool/disc/PatchedTree.h"
#include "disctool/disc/TextEncoding.h"

namespace orvanta {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// A line in Windows-1250, without its line break.
struct TextLine {
  std::string text, end;
};

std::vector<TextLine> LinesOf(std::string_view text) {
  std::vector<TextLine> lines;
  while (!text.empty()) {
    const auto length = std::min(text.find_first_of("\r\n"), text.size());
    const std::size_t end = text.substr(length).starts_with(kLineEnd) ? 2 : length < text.size() ? 1 : 0;
    lines.push_back({std::string(text.substr(0, length)), std::string(text.substr(length, end))});
    text.remove_prefix(length + end);
  }
  return lines;
}

std::string Joined(const std::vector<TextLine>& lines) {
  std::string text;
  for (const TextLine& line : lines) text += line.text + line.end;
  return text;
}

/// The file in Windows-1250; nothing if it has a letter that the code page lacks.
std::optional<std::string> Recoded(std::string_view bytes, bool& changed) {
  changed = true;
  if (LooksLikeUtf16(bytes)) return ToWindows1250(Utf8OfUtf16(bytes));
  changed = bytes.starts_with(kByteOrderMark);
  if (changed) bytes.remove_prefix(kByteOrderMark.size());
  std::vector<TextLine> lines = LinesOf(bytes);
  for (TextLine& line : lines) {
    if (!LooksLikeUtf8(line.text)) continue;
    auto recoded = ToWindows1250(line.text);
    if (!recoded) return std::nullopt;
    line.text = *recoded;
    changed = true;
  }
  return Joined(lines);
}

/// Mends the encoding and the line breaks.
FileFix WholeFile(const std::string& path, const std::string& bytes) {
  FileFix fix;
  fix.path = path;
  bool recoded = false;
  const auto text = Recoded(bytes, recoded);
  if (!text) {
    fix.problem = Translated("it has letters that Windows-1250 lacks");
    return fix;
  }
  if (recoded) fix.notes.push_back(Translated("the encoding becomes Windows-1250"));
  std::vector<TextLine> lines = LinesOf(*text);
  const auto differs = [&](const TextLine& line) { return !line.end.empty() && line.end != lines[0].end; };
  if (std::ranges::any_of(lines, differs)) {
    fix.notes.push_back(Translated("all lines end in CR LF"));
    for (TextLine& line : lines)
      if (!line.end.empty()) line.end = kLineEnd;
  }
  fix.bytes = Joined(lines);
  return fix;
}

/// The line with another value of the same length. The percent sign that the lookup replaces with the drive
/// is kept.
std::string WithValue(const std::string& line, const std::string& mended) {
  const auto value = ToWindows1250(mended);
  const auto equals = line.find('=');
  if (!value || equals == line.npos) return line;
  const std::size_t skip = value->size() > 2 && (*value)[1] == ':' ? 2 : 0;
  const std::string right = value->substr(skip), wanted = FromWindows1250(right);
  for (std::size_t at = equals + 1; at + right.size() <= line.size(); ++at)
    if (EqualNoCase(FromWindows1250(std::string_view(line).substr(at, right.size())), wanted))
      return line.substr(0, at) + right + line.substr(at + right.size());
  return line;
}

/// What the findings at each line of a file ask for: another value, or that the line is removed.
std::map<int, std::optional<std::string>> Asked(const Findings& findings, const std::filesystem::path& file) {
  std::map<int, std::optional<std::string>> asked;
  std::map<int, bool> disputed;
  for (const Finding& finding : findings.List()) {
    if (finding.place.file != file) continue;
    if (finding.id == "key-twice") asked[finding.place.line] = std::nullopt;
    if (finding.id != "other-case") continue;
    const auto [at, isNew] = asked.try_emplace(finding.place.line, finding.mended);
    // The three pictures of a button may be spelled differently.
    if (finding.mended.empty() || (!isNew && at->second != finding.mended))
      disputed[finding.place.line] = true;
  }
  for (const auto& [line, unused] : disputed) asked.erase(line);
  return asked;
}

void MendLines(FileFix& fix, const std::map<int, std::optional<std::string>>& asked) {
  std::vector<TextLine> lines = LinesOf(fix.bytes);
  for (const auto& [number, value] : asked) {
    if (number < 1 || static_cast<std::size_t>(number) > lines.size()) continue;
    TextLine& line = lines[static_cast<std::size_t>(number - 1)];
    const std::string before = FromWindows1250(line.text);
    const std::string after = value ? WithValue(line.text, *value) : std::string();
    if (value && after == line.text) continue;
    fix.lines.push_back({number, before, value ? std::optional(FromWindows1250(after)) : std::nullopt});
    line = value ? TextLine{after, line.end} : TextLine{};
  }
  fix.bytes = Joined(lines);
}

}  // namespace

std::vector<FileFix> PlanFixes(const DiscTree& disc, DiscProbe& probe) {
  std::vector<FileFix> fixes;
  PatchedTree readable(disc);
  const Catalogue catalogue(disc);
  for (const Catalogue::File& file : catalogue.Files()) {
    const std::string path = file.path.lexically_relative(disc.Name()).native();
    const auto bytes = file.found && !file.tooLarge ? disc.Read(path) : std::nullopt;
    if (!bytes) continue;
    fixes.push_back(WholeFile(path, *bytes));
    if (fixes.back().problem.empty()) readable.Replace(path, fixes.back().bytes);
  }
  const Findings findings = CheckDisc(readable, probe);
  for (FileFix& fix : fixes)
    if (fix.problem.empty()) MendLines(fix, Asked(findings, disc.Place(fix.path)));
  std::erase_if(fixes, [](const FileFix& fix) {
    return fix.problem.empty() && fix.notes.empty() && fix.lines.empty();
  });
  return fixes;
}

std::string FixText(const DiscTree& disc, const FileFix& fix) {
  const std::string name = Printable(disc.Place(fix.path).native());
  if (!fix.problem.empty()) return name + ": " + fix.problem + "\n";
  std::string text = "--- " + name + "\n+++ " + name + "\n";
  for (const std::string& note : fix.notes) text += "# " + note + "\n";
  int gone = 0;
  for (const FileFix::Line& line : fix.lines) {
    const std::string from = std::to_string(line.number);
    // The format of a unified diff without context (POSIX, diff -u).
    const std::string to =
        line.after ? std::to_string(line.number - gone) : std::to_string(line.number - gone - 1) + ",0";
    text += "@@ -" + from + " +" + to + " @@\n-" + Printable(line.before) + "\n";
    if (line.after) text += "+" + Printable(*line.after) + "\n";
    gone += line.after ? 0 : 1;
  }
  return text;
}

}  // namespace orvanta
