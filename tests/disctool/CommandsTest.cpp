#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <sstream>

#include "disctool/CheckedDisc.h"
#include "disctool/Commands.h"

namespace orvanta::test {
namespace {

std::string Tree(const TestDisc& disc, bool json = false) {
  std::ostringstream out, err;
  EXPECT_EQ(TreeCommand(disc.Folder(), json, out, err), kGood) << err.str();
  return out.str();
}

TEST(TreeCommand, ListsEveryNodeWithItsKind) {
  GoodDisc disc;
  disc.Menu("Programy", {"Gra", "Nic", "MAINMENU"});
  EXPECT_EQ(Tree(disc),
            "MAINMENU [menu]\n"
            "  Programy [menu]\n"
            "    Gra [program]\n"
            "    Nic [inert]\n"
            "    MAINMENU [menu, see above]\n"
            "  Muzyka [music]\n"
            "  Film [film]\n");
  EXPECT_EQ(Tree(disc, true),
            "{\"nodes\": [\n"
            "  {\"id\": 0, \"name\": \"MAINMENU\", \"kind\": \"menu\", \"items\": [1, 2, 3]},\n"
            "  {\"id\": 1, \"name\": \"Programy\", \"kind\": \"menu\", \"items\": [4, 5, 0]},\n"
            "  {\"id\": 2, \"name\": \"Muzyka\", \"kind\": \"music\", \"items\": []},\n"
            "  {\"id\": 3, \"name\": \"Film\", \"kind\": \"film\", \"items\": []},\n"
            "  {\"id\": 4, \"name\": \"Gra\", \"kind\": \"program\", \"items\": []},\n"
            "  {\"id\": 5, \"name\": \"Nic\", \"kind\": \"inert\", \"items\": []}\n"
            "]}\n");
}

TEST(TreeCommand, AFolderWithoutADiscIsAFault) {
  const GoodDisc disc;
  std::ostringstream out, err;
  EXPECT_EQ(TreeCommand(disc.Data(), false, out, err), kFaults);
  EXPECT_EQ(out.str(), "");
  EXPECT_NE(err.str().find("no disc"), std::string::npos);
}

TEST(GetCommand, WritesTheValueThatTheShellWouldFind) {
  const GoodDisc disc;
  std::ostringstream out;
  EXPECT_EQ(GetCommand(disc.Folder(), "headline", "CAPTION", out), kGood);
  EXPECT_EQ(GetCommand(disc.Folder(), "Gra", "Execute", out), kGood);
  EXPECT_EQ(GetCommand(disc.Folder(), "Gra", "Parameters", out), kFaults);
  EXPECT_EQ(out.str(), "Płyta próbna\nD:\\setup.exe\n");
}

TEST(CheckCommand, WarningsAreFaultsOnlyIfAskedFor) {
  GoodDisc disc;
  FirstBytesProbe probe;
  std::ostringstream out;
  disc.Set("GLOBAL", "S2_Top", "1.5");
  EXPECT_EQ(CheckCommand(disc.Folder(), probe, {}, out), kGood);
  EXPECT_EQ(CheckCommand(disc.Folder(), probe, {.strict = true}, out), kFaults);
  disc.Remove("GLOBAL", "S2_Top");
  out.str("");
  EXPECT_EQ(CheckCommand(disc.Folder(), probe, {.json = true}, out), kFaults);
  EXPECT_EQ(out.str(), "{\"errors\": 1, \"warnings\": 0, \"findings\": [\n  {\"file\": \"" +
                           (disc.Data() / "Menu.ini").string() +
                           "\", \"line\": 1, \"severity\": \"error\", \"id\": \"missing-key\", \"text\": "
                           "\"S2_Top of [GLOBAL] is missing\"}\n]}\n");
}

/// The same of `write`, as text of INI files, at the end of Menu.ini.
template <class Write>
void Append(GoodDisc& disc, Write write) {
  std::ostringstream text;
  write(text);
  disc.File("Data/Menu.ini", disc.MenuIni() + text.str());
}

double ProcessorSeconds(const std::function<void()>& work) {
  const std::clock_t begin = std::clock();
  work();
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

// Discs that a careless walk would never come back from: wide, deep, and with more ways than nodes.
TEST(Commands, TakeHugeAndHostileDiscsInStride) {
  GoodDisc wide, deep, woven;
  wide.Menu("Gra", {"Dział 1", "Dział 2", "Dział 3", "Dział 4", "Dział 5"});
  Append(wide, [](std::ostream& out) {
    for (int menu = 1; menu <= 5; ++menu) {
      out << "[Dzia\xB3 " << menu << "]\r\n";
      for (int i = 1; i <= 1000; ++i) out << "Menu" << i << "=Wpis " << menu << "." << i << "\r\n";
      for (int i = 1; i <= 1000; ++i)
        out << "[Wpis " << menu << "." << i << "]\r\nExecute=%:\\SETUP" << i
            << ".EXE\r\nNote=Opis\r\nSystem=Wymagania\r\n"
            << "Shot1=Shot.gif\r\nShot2=Obraz" << menu << "_" << i << ".gif\r\n";
    }
  });
  Append(deep, [](std::ostream& out) {
    for (int i = 0; i < 40000; ++i)
      out << "[" << (i == 0 ? "Nic" : "n" + std::to_string(i)) << "]\nMenu1=n" << i + 1 << "\n";
  });
  deep.File("Data/Menu.ini", "[MAINMENU]\nMenu1=Nic\n" + deep.MenuIni());
  Append(woven, [](std::ostream& out) {
    for (int i = 0; i < 1000; ++i)
      out << "[w" << i << "]\nMenu1=w" << i + 1 << "\nMenu2=w" << i + 1 << "\nMenu3=w" << i / 2 << "\n";
  });
  woven.File("Data/Menu.ini", "[MAINMENU]\nMenu1=w0\n" + woven.MenuIni());
  for (const GoodDisc* disc : {&wide, &deep, &woven}) {
    FirstBytesProbe probe;
    std::ostringstream out;
    // The bound for each is two seconds; the sanitizers take several times as long.
    EXPECT_LT(ProcessorSeconds([&] { EXPECT_EQ(CheckCommand(disc->Folder(), probe, {}, out), kFaults); }),
              10);
    EXPECT_LT(ProcessorSeconds([&] { EXPECT_GT(Tree(*disc).size(), 1000U); }), 10);
    EXPECT_LT(probe.tries, 200) << "a file is tried once, however many entries name it";
  }
}

TEST(Commands, WaitForNoFifoAndReadNoEndlessFile) {
  GoodDisc disc;
  std::filesystem::remove(disc.Data() / "help.gif");
  std::filesystem::create_symlink("/dev/zero", disc.Data() / "help.gif");
  std::filesystem::create_symlink("/dev/zero", disc.Data() / "Param.ini");
  const Findings findings = disc.Check();
  ASSERT_EQ(findings.List().size(), 1U) << FindingsText(findings);
  EXPECT_EQ(findings.List()[0].id, "no-picture");
  disc.File("Data/Menu.ini", "");
  std::filesystem::resize_file(disc.Data() / "Menu.ini", Catalogue::kLargestFile + 1);
  const std::string text = FindingsText(disc.Check());
  EXPECT_NE(text.find("too large"), text.npos);
}

}  // namespace
}  // namespace orvanta::test
