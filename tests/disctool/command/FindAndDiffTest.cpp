#include <gtest/gtest.h>

#include "disctool/check/CheckedDisc.h"
#include "disctool/command/DiffCommand.h"
#include "disctool/command/FindCommand.h"

namespace orvanta::test {
namespace {

TEST(Find, AcceptsPolishLettersWithAndWithoutMarksAndShowsThePathThroughTheMenus) {
  GoodDisc disc;
  disc.Menu("Programy", {"Gra", "Żółw i Łoś"});
  disc.Entry("Żółw i Łoś", {{"Execute", "%:\\Gry\\zolw.exe"}, {"System", "Pamięć 8 MB"}});
  const std::string name = disc.Folder().string();
  const std::string item = name + ": Programy > Żółw i Łoś [program]";
  const auto find = [&](const char* words) {
    return FindReport(FolderTree(disc.Folder()), words, false).text;
  };
  EXPECT_EQ(find("ŻÓŁW łos"), item + "\n");
  EXPECT_EQ(find("pamiec zolw"), item + " System=Pamięć 8 MB\n");
  EXPECT_EQ(find("gry\\"), item + " Execute=D:\\Gry\\zolw.exe\n");
  EXPECT_EQ(find("OPIS film"), name + ": Film [film] Note=Opis\n");
  EXPECT_TRUE(FindReport(FolderTree(disc.Folder()), "zolw słoń", false).faults);
  EXPECT_NE(
      FindReport(FolderTree(disc.Folder()), "zolw", true)
          .text.find(
              R"("matches": [{"name": "Żółw i Łoś", "kind": "program", "path": ["Programy", "Żółw i Łoś"], )"),
      std::string::npos);
}

TEST(Diff, ShowsWhatChangedBetweenTwoPressings) {
  GoodDisc first, second;
  FirstBytesProbe probe;
  const auto diff = [&](bool json) {
    return DiffReport(FolderTree(first.Folder()), FolderTree(second.Folder()), probe, json);
  };
  EXPECT_FALSE(diff(false).faults) << diff(false).text;
  second.Set("GLOBAL", "BackX", "17");
  second.Menu("MAINMENU", {"Film", "Programy", "Nowa"});
  second.Set("Film", "Note", "Inny opis");
  second.Picture("help.gif", 400, 600, 0);
  second.File("setup.exe", kDosProgram + "2");
  second.File("Nowe/plik.txt", "x");
  std::filesystem::rename(second.Folder() / "film.avi", second.Folder() / "FILM.AVI");
  const DiscReport report = diff(false);
  EXPECT_TRUE(report.faults);
  for (const char* line : {"settings:\n~ BackX [GLOBAL]: ", " -> 17\n", "menus:\n- MAINMENU > Muzyka\n",
                           "+ MAINMENU > Nowa\n~ MAINMENU: the items are in another order\n",
                           "texts:\n~ Note [Film]: Opis -> Inny opis\n", "~ setup.exe: 33 bytes, before 32\n",
                           "+ Nowe/plik.txt\n", "~ Data/help.gif: 240000 pixels differ\n"})
    EXPECT_NE(report.text.find(line), std::string::npos) << line << report.text;
  EXPECT_EQ(report.text.find("FILM.AVI"), std::string::npos) << "the names differ only in case";
  EXPECT_NE(diff(true).text.find(R"({"path": "setup.exe", "before": 32, "after": 33, "pixels": null})"),
            std::string::npos);
}

}  // namespace
}  // namespace orvanta::test
