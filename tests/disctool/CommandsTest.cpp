#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <random>
#include <sstream>
#include <string_view>

#include "config/ProfileString.h"
#include "disctool/CheckedDisc.h"
#include "disctool/Commands.h"

namespace orvanta::test {
namespace {

using namespace std::string_view_literals;

// The tool has a reader of its own, which must not drift from the shell's: texts made of the characters that
// decide, in thousands of orders. A key without a name is never asked for.
TEST(Catalogue, FindsWhatTheShellFindsInWildTexts) {
  constexpr std::string_view kAlphabet = "[]==;\"' \t\x1a\v\r\n\nAaBb\xA3\xB3%:\0"sv;
  const std::vector<std::string> names = {"A", "a", "AB", "b", "\xB3", "A b", " a", ";a", "a]", ""};
  std::mt19937 random(1998);
  for (int round = 0; round < 300000; ++round) {
    std::string text(random() % 60, ' ');
    for (char& c : text) c = kAlphabet[random() % kAlphabet.size()];
    if (round % 2 == 0) text = "[a]\n" + text;
    const std::string &section = names[random() % names.size()], &key = names[random() % (names.size() - 1)];
    const IniFile file = ParseIniFile(text);
    const IniSection* in = file.Find(section);
    const IniEntry* entry = in ? in->Find(key) : nullptr;
    ASSERT_EQ(entry ? entry->value : "", ProfileStringOf(text, section, key))
        << testing::PrintToString(text) << " [" << section << "] " << key;
  }
}

std::string Tree(const TestDisc& disc, bool json = false) {
  std::ostringstream out, err;
  EXPECT_EQ(TreeCommand(disc.Folder(), json, out, err), kGood) << err.str();
  return out.str();
}

TEST(Commands, ListTheTreeFindValuesAndTellFaults) {
  GoodDisc disc;
  disc.Menu("Programy", {"Gra", "Nic", "MAINMENU"});
  EXPECT_EQ(Tree(disc), R"(MAINMENU [menu]
  Programy [menu]
    Gra [program]
    Nic [inert]
    MAINMENU [menu, see above]
  Muzyka [music]
  Film [film]
)");
  EXPECT_TRUE(Tree(disc, true).starts_with(R"({"nodes": [
  {"id": 0, "name": "MAINMENU", "kind": "menu", "items": [1, 2, 3]},
)"));
  std::ostringstream out, err;
  EXPECT_EQ(TreeCommand(disc.Data(), false, out, err), kFaults);
  EXPECT_NE(err.str().find("no disc"), std::string::npos);
  EXPECT_EQ(GetCommand(disc.Folder(), "headline", "CAPTION", out), kGood);
  EXPECT_EQ(GetCommand(disc.Folder(), "Gra", "Execute", out), kGood);
  EXPECT_EQ(GetCommand(disc.Folder(), "Gra", "Parameters", out), kFaults);
  EXPECT_EQ(out.str(), "Płyta próbna\nD:\\setup.exe\n");
}

TEST(Commands, TakeWarningsForFaultsOnlyIfAskedTo) {
  GoodDisc disc;
  FirstBytesProbe probe;
  std::ostringstream out, json;
  disc.Set("GLOBAL", "S2_Top", "1.5");
  EXPECT_EQ(CheckCommand(disc.Folder(), probe, {}, out), kGood);
  EXPECT_EQ(CheckCommand(disc.Folder(), probe, {.strict = true}, out), kFaults);
  disc.Remove("GLOBAL", "S2_Top");
  EXPECT_EQ(CheckCommand(disc.Folder(), probe, {.json = true}, json), kFaults);
  EXPECT_TRUE(json.str().starts_with(R"({"errors": 1, "warnings": 0, "findings": [)")) << json.str();
  EXPECT_NE(json.str().find(R"("severity": "error", "id": "missing-key", "text": "S2_Top of)"),
            std::string::npos);
}

// Discs that a careless walk would never come back from: wide, deep, and with more ways than nodes.
TEST(Commands, TakeHugeAndHostileDiscsInStride) {
  using Text = std::function<void(std::ostream&, int)>;
  const Text wide = [](std::ostream& out, int menu) {
    out << "[n" << menu << "]\n";
    for (int i = 1; i <= 1000; ++i) out << "Menu" << i << "=Wpis " << menu << "." << i << "\n";
    for (int i = 1; i <= 1000; ++i)
      out << "[Wpis " << menu << "." << i << "]\nExecute=%:\\SETUP" << i << ".EXE\nShot1=Shot.gif\n";
  };
  const Text deep = [](std::ostream& out, int i) { out << "[n" << i << "]\nMenu1=n" << i + 1 << "\n"; };
  const Text woven = [](std::ostream& out, int i) {
    out << "[n" << i << "]\nMenu1=n" << i + 1 << "\nMenu2=n" << i + 1 << "\nMenu3=n" << i / 2 << "\n";
  };
  for (const auto& [count, write] : {std::pair{5, wide}, {40000, deep}, {1000, woven}}) {
    GoodDisc disc;
    std::ostringstream text, out;
    text << "[MAINMENU]\nMenu1=n0\nMenu2=n1\nMenu3=n2\nMenu4=n3\nMenu5=n4\n" << disc.MenuIni();
    for (int i = 0; i < count; ++i) write(text, i);
    disc.File("Data/Menu.ini", text.str());
    FirstBytesProbe probe;
    const std::clock_t begin = std::clock();
    EXPECT_EQ(CheckCommand(disc.Folder(), probe, {}, out), kFaults);
    EXPECT_GT(Tree(disc).size(), 1000U);
    // The bound is two seconds; the sanitizers take several times as long.
    EXPECT_LT(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC, 10);
    EXPECT_LT(probe.tries, 200) << "a file is tried once, however many entries name it";
  }
}

TEST(Commands, ReadNoEndlessFile) {
  GoodDisc disc;
  std::filesystem::remove(disc.Data() / "help.gif");
  std::filesystem::create_symlink("/dev/zero", disc.Data() / "help.gif");
  std::filesystem::create_symlink("/dev/zero", disc.Data() / "Param.ini");
  const Findings findings = disc.Check();
  ASSERT_EQ(findings.List().size(), 1U) << FindingsText(findings);
  EXPECT_EQ(findings.List()[0].id, "no-picture");
  std::filesystem::resize_file(disc.Data() / "Menu.ini", Catalogue::kLargestFile + 1);
  EXPECT_NE(FindingsText(disc.Check()).find("too large"), std::string::npos);
}

}  // namespace
}  // namespace orvanta::test
