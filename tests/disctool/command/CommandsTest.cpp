#include <gtest/gtest.h>

#include <ctime>
#include <random>
#include <sstream>
#include <string_view>

#include "config/ProfileString.h"
#include "disctool/check/CheckedDisc.h"
#include "disctool/command/DiscCommands.h"

namespace orvanta::test {
namespace {

using namespace std::string_view_literals;

// The tool has its own reader, which must not differ from the shell's: texts made of the characters that
// matter, in thousands of orders. Keys without a name are never looked up.
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
  const DiscReport report = TreeReport(FolderTree(disc.Folder()), json, false);
  EXPECT_EQ(report.problem, "");
  return report.text;
}

TEST(Commands, ListTheTreeFindValuesAndReportFaults) {
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
  EXPECT_NE(Tree(disc, true)
                .find(R"(, "nodes": [{"id": 0, "name": "MAINMENU", "kind": "menu", "items": [1, 2, 3]}, )"),
            std::string::npos);
  std::ostringstream out;
  EXPECT_NE(TreeReport(FolderTree(disc.Data()), false, false).problem.find("no disc"), std::string::npos);
  EXPECT_EQ(GetCommand(FolderTree(disc.Folder()), "headline", "CAPTION", out), kGood);
  EXPECT_EQ(GetCommand(FolderTree(disc.Folder()), "Gra", "Execute", out), kGood);
  EXPECT_EQ(GetCommand(FolderTree(disc.Folder()), "Gra", "Parameters", out), kFaults);
  EXPECT_EQ(out.str(), "Płyta próbna\nD:\\setup.exe\n");
}

// Fault: a good disc that fails on a machine without DOSBox.
TEST(Commands, NoteWhatThisMachineLacksAndDoNotBlameTheDisc) {
  struct : FirstBytesProbe {
    Runner RunnerOf(const FileFacts& facts) override {
      return facts.kind == FileKind::Dos ? Runner{"dosbox", {}, "dosbox"} : Runner{};
    }
  } probe;
  const GoodDisc disc;
  const DiscReport report = CheckReport(FolderTree(disc.Folder()), probe, {.strict = true});
  EXPECT_FALSE(report.faults);
  EXPECT_NE(report.text.find(": note: Execute of [Gra] cannot be started on this machine: D:\\setup.exe (DOS "
                             "program) needs dosbox"),
            std::string::npos)
      << report.text;
}

TEST(Commands, CountWarningsAsFaultsOnlyIfAskedTo) {
  GoodDisc disc;
  FirstBytesProbe probe;
  const auto check = [&](const CheckOptions& options) {
    return CheckReport(FolderTree(disc.Folder()), probe, options);
  };
  disc.Set("GLOBAL", "S2_Top", "1.5");
  EXPECT_FALSE(check({}).faults);
  EXPECT_TRUE(check({.strict = true}).faults);
  disc.Remove("GLOBAL", "S2_Top");
  const DiscReport json = check({.json = true});
  EXPECT_TRUE(json.faults);
  EXPECT_NE(json.text.find(R"(, "errors": 1, "warnings": 0, "notes": 0, "findings": [)"), std::string::npos);
  EXPECT_NE(json.text.find(R"("severity": "error", "id": "missing-key", "text": "S2_Top of)"),
            std::string::npos);
}

// A disc that a careless walk would never return from: deep, and with more paths than nodes.
TEST(Commands, FinishOnAHugeAndHostileDisc) {
  GoodDisc disc;
  FirstBytesProbe probe;
  std::ostringstream text;
  text << "[MAINMENU]\nMenu1=n0\n" << disc.MenuIni();
  for (int i = 0; i < 40000; ++i)
    text << "[n" << i << "]\nMenu1=n" << i + 1 << "\nMenu2=n" << i + 1 << "\nMenu3=n" << i / 2 << "\n";
  disc.File("Data/Menu.ini", text.str());
  const std::clock_t begin = std::clock();
  EXPECT_TRUE(CheckReport(FolderTree(disc.Folder()), probe, {}).faults);
  EXPECT_GT(Tree(disc).size(), 1000U);
  // The limit is two seconds; the sanitizers take several times as long.
  EXPECT_LT(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC, 10);
}

// One file opens but cannot be read, as on a scratched disc; another is endless.
TEST(Commands, ReportFilesThatCannotBeReadAndReadNoEndlessOne) {
  GoodDisc disc;
  std::filesystem::create_symlink("/proc/self/mem", disc.Data() / "Param.ini");
  EXPECT_NE(FindingsText(disc.Check()).find("Param.ini: error: the file cannot be read"), std::string::npos);
  EXPECT_GT(Tree(disc).size(), 50U);
  for (const char* endless : {"help.gif", "Param.ini"}) {
    std::filesystem::remove(disc.Data() / endless);
    std::filesystem::create_symlink("/dev/zero", disc.Data() / endless);
  }
  const Findings findings = disc.Check();
  EXPECT_EQ(findings.Errors(), 1U) << FindingsText(findings);
  EXPECT_EQ(findings.List().at(0).id, "special-file");
}

}  // namespace
}  // namespace orvanta::test
