#include <gtest/gtest.h>

#include <array>
#include <map>
#include <regex>

#include "config/SchemaTable.h"
#include "disctool/check/CheckedDisc.h"
#include "disctool/disc/OutlineSvg.h"
#include "support/Project.h"

namespace orvanta::test {
namespace {

std::string Document(const std::string& name) { return TextOf(ProjectFolder() / "docs" / name); }

/// The words of a manual for the kinds of value, and for whether a key is needed, each in the order of its
/// type.
struct Words {
  const char* manual;
  std::array<const char*, 11> kinds;
  std::array<const char*, 3> needed;
};

constexpr Words kManuals[] = {
    {"discs.md",
     {"picture", "base", "font", "sound", "whole", "single", "double", "colour", "boolean", "text", "any"},
     {"yes", "no", "run"}},
    {"discs.pl.md",
     {"obrazek", "rdzeń", "czcionka", "dźwięk", "całkowita", "liczba", "liczba", "kolor", "logiczna", "tekst",
      "dowolna"},
     {"tak", "nie", "ciąg"}}};

TEST(Manual, ListsEveryKeyOfTheTableAndNoOther) {
  for (const Words& words : kManuals) {
    std::map<std::string, std::string> table, manual;
    for (const SchemaKey& key : kSchema)
      table[std::string(key.section) + " " + std::string(key.name) +
            (key.presence == Presence::Run ? "1" : "")] =
          std::string(words.kinds.at(static_cast<std::size_t>(key.kind))) + " " +
          words.needed.at(static_cast<std::size_t>(key.presence));
    // A heading with the section, and rows of key, kind, whether it is needed, and effect.
    const std::string text = Document(words.manual);
    const std::regex line(R"re(\n#+ (?:`\[([^\]]*))?|\n\| `([^`]*)`[^|]*\| ([^| ]+) \| ([^| ]+) \| ...)re");
    std::string section;
    for (std::sregex_iterator it(text.begin(), text.end(), line), end; it != end; ++it) {
      if (!(*it)[2].matched) section = (*it)[1];
      if ((*it)[2].matched && !section.empty())
        manual[section + " " + it->str(2)] = it->str(3) + " " + it->str(4);
    }
    EXPECT_EQ(manual, table) << words.manual;
  }
}

TEST(Manual, ExplainsEveryFindingAsTheToolDoes) {
  const std::string text = Document("discs.md");
  for (const FindingInfo& info : kFindings) {
    const std::string row = "| `" + std::string(info.id) + "` | " + info.meaning + " | " + info.example +
                            " | " + info.remedy + " |\n";
    EXPECT_NE(text.find(row), std::string::npos) << row;
  }
  EXPECT_EQ(Explanation("no-such-id"), "");
}

TEST(Manual, HasTheOutlineThatTheWindowHas) { EXPECT_EQ(Document("outline.svg"), OutlineSvg()); }

}  // namespace
}  // namespace orvanta::test
