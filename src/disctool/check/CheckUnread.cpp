// Finds sections and keys that nothing reads.

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <vector>

#include "config/NumberedKey.h"
#include "config/Windows1250.h"
#include "disctool/check/CheckJob.h"
#include "disctool/disc/NearestName.h"

namespace orvanta {
namespace {

/// The number after `prefix` in a key; nothing if the key does not belong to that run, and 0 if the run
/// cannot have that number.
std::optional<int> NumberInRun(std::string_view key, std::string_view prefix) {
  if (key.size() <= prefix.size() || !EqualNoCase(key.substr(0, prefix.size()), prefix)) return std::nullopt;
  const std::string_view digits = key.substr(prefix.size());
  if (digits.find_first_not_of("0123456789") != digits.npos) return std::nullopt;
  int number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return std::to_string(number) == digits ? number : 0;
}

class Section {
 public:
  /// `schema` is the name of the section in the table of keys.
  Section(CheckJob& job, std::string name, std::string_view schema)
      : job_(job), name_(std::move(name)), schema_(schema) {}

  void Check(const Catalogue::File& file, const IniSection& section, bool isNode, bool isMenu) {
    for (const IniEntry& entry : section.entries) {
      if (section.Find(entry.key) != &entry) continue;
      const std::string key = FromWindows1250(entry.key);
      const DiscPlace place{file.path, entry.line};
      const bool read = Known(place, key, schema_) ||
                        (isNode && schema_ != kNodeSection && Known(place, key, kNodeSection));
      if (!read) Unknown(place, key);
      if (read && isMenu && schema_ == kNodeSection) OfAMenu(place, key);
      if (read) Hidden(place, key);
    }
  }

 private:
  /// Whether the table has the key; reports a number of a run that nothing reads.
  bool Known(const DiscPlace& place, const std::string& key, std::string_view schema) {
    for (const SchemaKey& known : kSchema) {
      if (known.section != schema) continue;
      if (known.presence != Presence::Run) {
        if (EqualNoCase(known.name, key)) return true;
      } else if (const auto number = NumberInRun(key, known.name)) {
        BehindTheEnd(place, key, known.name, *number);
        return true;
      }
    }
    return false;
  }

  int RunLength(std::string_view prefix) {
    for (const auto& [known, length] : lengths_)
      if (known == prefix) return length;
    int length = 0;
    while (length < kLongestRun && job_.catalogue.Find(name_, NumberedKey(prefix, length + 1))) ++length;
    lengths_.emplace_back(prefix, length);
    return length;
  }

  void BehindTheEnd(const DiscPlace& place, const std::string& key, std::string_view prefix, int number) {
    const int length = RunLength(prefix);
    if (number >= 1 && number <= length + 1) return;
    const bool gap = number > length && length < kLongestRun;
    job_.findings.Warning(
        place, "behind-the-end",
        gap ? Translated("%1 is never read: %2 is missing, which ends the run", Naming(name_, key),
                         NumberedKey(prefix, length + 1))
            : Translated("%1 is never read: numbers run from 1 to %2, without leading zeros",
                         Naming(name_, key), kLongestRun));
  }

  /// The key that was most likely meant. For numbered keys the digits must match, wherever they are.
  std::string NearestKey(const std::string& key) const {
    std::string digits;
    for (const char c : key)
      if (c >= '0' && c <= '9') digits += c;
    std::vector<std::string> keys;
    for (const SchemaKey& known : kSchema) {
      if (known.section != schema_) continue;
      const bool run = known.presence == Presence::Run;
      keys.push_back(std::string(known.name) + (!run ? "" : digits.empty() ? "1" : digits));
    }
    const std::vector<std::string_view> names(keys.begin(), keys.end());
    return std::string(NearestName(key, names));
  }

  void Unknown(const DiscPlace& place, const std::string& key) {
    std::string text = Translated("%1 is never read", Naming(name_, key));
    const auto elsewhere = std::ranges::find_if(kSchema, [&](const SchemaKey& known) {
      return known.section != kNodeSection && EqualNoCase(known.name, key);
    });
    if (const std::string nearest = NearestKey(key); !nearest.empty()) {
      text += Translated("; did you mean %1?", nearest);
    } else if (elsewhere != kSchema.end()) {
      text += Translated("; it is a key of [%1]", elsewhere->section);
    }
    job_.findings.Warning(place, "unknown-key", text);
  }

  void OfAMenu(const DiscPlace& place, const std::string& key) {
    for (const char* shown : {"Note", "System", "Parameters"})
      if (EqualNoCase(key, shown))
        job_.findings.Warning(place, "menu-and-entry",
                              Translated("%1 is never read: '%2' is a menu", Naming(name_, key), name_));
    if (NumberInRun(key, "Shot"))
      job_.findings.Warning(place, "menu-and-entry",
                            Translated("%1 is never read: '%2' is a menu", Naming(name_, key), name_));
  }

  /// Reports a key of the second file that the first file has too.
  void Hidden(const DiscPlace& place, const std::string& key) {
    const Setting found = job_.catalogue.Find(name_, key);
    if (!found || found.place.file == place.file) return;
    const Catalogue::File& second = job_.catalogue.Files()[1];
    if (place.file != second.path) return;
    job_.findings.Warning(place, "hidden-key",
                          Translated("%1 is never read: line %2 of %3 has it too", Naming(name_, key),
                                     found.place.line, found.place.file.filename().string()));
  }

  CheckJob& job_;
  const std::string name_;
  const std::string_view schema_;
  std::vector<std::pair<std::string_view, int>> lengths_;
};

}  // namespace

void CheckUnread(CheckJob& job) {
  for (const Catalogue::File& file : job.catalogue.Files()) {
    for (const IniSection& section : file.ini.sections) {
      if (file.ini.Find(section.name) != &section) continue;
      const std::string name = FromWindows1250(section.name);
      const std::string_view fixed = FixedSection(name);
      const MenuNode* node = job.tree.Find(name);
      if (fixed.empty() && !node) {
        job.findings.Warning({file.path, section.line}, "unreached",
                             Translated("nothing leads to [%1]", name));
        continue;
      }
      Section(job, name, fixed.empty() ? kNodeSection : fixed)
          .Check(file, section, node != nullptr, node && node->kind == NodeKind::Menu);
    }
  }
}

}  // namespace orvanta
