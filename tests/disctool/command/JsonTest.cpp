#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "disctool/check/CheckedDisc.h"
#include "disctool/command/DiffCommand.h"
#include "disctool/command/FindCommand.h"
#include "disctool/command/InfoCommand.h"
#include "disctool/command/Sarif.h"
#include "disctool/disc/Sha256.h"
#include "support/Project.h"

namespace orvanta::test {
namespace {

/// The fields of a JSON text by their paths, "findings[].line", with their types. Fails the test on anything
/// that is not JSON.
class JsonFields {
 public:
  explicit JsonFields(std::string_view text) : text_(text) {
    Value("");
    EXPECT_EQ(text_, "\n");
  }
  std::map<std::string, std::string> types;

 private:
  bool Take(char c) {
    const auto blanks = text_.find_first_not_of(' ');
    text_.remove_prefix(std::min(blanks, text_.size()));
    const bool there = text_.starts_with(c);
    if (there) text_.remove_prefix(1);
    return there;
  }
  std::string Text() {
    std::smatch match;
    const std::string rest(text_.substr(0, 2000));
    EXPECT_TRUE(std::regex_search(rest, match, std::regex(R"re(^([^"\\]|\\["\\u])*")re"))) << rest;
    text_.remove_prefix(static_cast<std::size_t>(match.length()));
    return match.str().substr(0, match.str().size() - 1);
  }
  void Value(const std::string& path) {
    if (Take('{')) {
      do {
        EXPECT_TRUE(Take('"'));
        const std::string name = Text();
        EXPECT_TRUE(Take(':'));
        Value(path.empty() ? name : path + "." + name);
      } while (Take(','));
      EXPECT_TRUE(Take('}'));
    } else if (Take('[')) {
      if (Take(']')) return;
      do Value(path + "[]");
      while (Take(','));
      EXPECT_TRUE(Take(']'));
    } else if (Take('"')) {
      Text();
      types[path] = "text";
    } else {
      const std::string word(text_.substr(0, text_.find_first_of(",]}")));
      const bool flag = word == "true" || word == "false";
      if (word != "null" || !types.contains(path))
        types[path] = flag ? "boolean" : word == "null" ? "null" : "number";
      text_.remove_prefix(word.size());
    }
  }
  std::string_view text_;
};

// Users of the output rely on the documentation, so the fields of both must be the same, with their types.
TEST(Json, HasExactlyTheDocumentedFields) {
  GoodDisc disc, other;
  FirstBytesProbe probe;
  other.Menu("MAINMENU", {"Film", "Nowa", "Programy"});
  other.Set("Film", "Note", "Inny");
  other.Set("GLOBAL", "BackX", "left");
  other.Picture("help.gif", 400, 600, 0);
  const FolderTree tree(other.Folder());
  const auto tracks = [](const std::filesystem::path&) { return std::vector{195, 62}; };
  EXPECT_NE(InfoReport(tree, probe, {.audioTracks = tracks}).text.find("audio tracks: 2 (3:15, 1:02)\n"),
            std::string::npos);
  const std::pair<const char*, std::string> outputs[] = {
      {"info", InfoReport(tree, probe, {.json = true, .hashes = true, .audioTracks = tracks}).text},
      {"check", CheckReport(tree, probe, {.json = true}).text},
      {"tree", TreeReport(tree, true, false).text},
      {"find", FindReport(tree, "film", true).text},
      {"diff", DiffReport(FolderTree(disc.Folder()), tree, probe, true).text}};
  std::set<std::string> page{"all problem text"}, written{"all problem text"};
  const std::string text = TextOf(ProjectFolder() / "docs/json.md");
  const std::regex row(R"re(\n\| `?(\w+)`? \| `([^`]*)` \| (\w+)( or null)? \| )re");
  for (std::sregex_iterator it(text.begin(), text.end(), row), end; it != end; ++it)
    page.insert(it->str(1) + " " + it->str(2) + " " + it->str(3));
  for (const auto& [command, output] : outputs)
    for (const auto& [field, type] : JsonFields(output).types) {
      const bool all = field == "version" || field == "disc";
      written.insert((all ? "all" : command) + (" " + field) + " " + type);
    }
  std::string differences;
  std::vector<std::string> apart;
  std::ranges::set_symmetric_difference(page, written, std::back_inserter(apart));
  for (const std::string& field : apart) differences += field + "\n";
  EXPECT_EQ(differences, "");
}

TEST(Json, SarifNamesFilesLinesAndRules) {
  GoodDisc disc;
  FirstBytesProbe probe;
  disc.Set("GLOBAL", "BackX", "left");
  const std::string results = CheckReport(FolderTree(disc.Folder()), probe, {.sarif = true}).text;
  const std::string log = SarifLog(results, true, "1");
  const auto types = JsonFields(log).types;
  EXPECT_EQ(types.at("runs[].results[].locations[].physicalLocation.region.startLine"), "number");
  EXPECT_EQ(types.at("runs[].tool.driver.rules[].id"), "text");
  EXPECT_NE(log.find(R"("ruleId": "no-number", "level": "error")"), std::string::npos);
  EXPECT_NE(log.find("\"uri\": \"file:///"), std::string::npos);
}

// The examples of FIPS 180-4, and lengths near the end of a block.
TEST(Sha256, ReturnsTheHashesOfTheStandard) {
  const auto hash = [](std::string_view text) {
    Sha256 sum;
    for (; text.size() > 7; text.remove_prefix(7)) sum.Add(text.substr(0, 7));
    sum.Add(text);
    return sum.Done();
  };
  EXPECT_EQ(hash(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(hash("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(hash("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
            "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
  EXPECT_EQ(hash(std::string(1000000, 'a')),
            "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

}  // namespace
}  // namespace orvanta::test
