#include <gtest/gtest.h>

#include "config/Windows1250.h"
#include "disctool/check/CheckedDisc.h"
#include "disctool/command/FixCommand.h"

namespace orvanta::test {
namespace {

DiscReport Fix(const GoodDisc& disc, bool dryRun = false) {
  FirstBytesProbe probe;
  return FixReport(FolderTree(disc.Folder()), probe, dryRun);
}

// Everything that has one right answer, in one file; and the old file is kept for those who disagree.
TEST(Fix, MendsWhatHasOneRightAnswerAndKeepsTheOldFile) {
  GoodDisc disc;
  disc.Set("GLOBAL", "HelpB", "HELP.gif");
  disc.Set("Gra", "Execute", "%:\\SETUP.EXE");
  disc.Set("GLOBAL", "ExtB", "EXT");
  const std::string bad =
      disc.MenuIni() + "[Dalej]\r\nNote=a\nNote=\xB3\xF3\xBFko\r\n; \xC5\x82\xC3\xB3\xC5\xBCko\r\n";
  disc.File("Data/Menu.ini", bad);
  const DiscReport shown = Fix(disc, true);
  EXPECT_TRUE(shown.faults);
  EXPECT_EQ(disc.MenuIni(), bad) << "only shown";
  for (const char* part :
       {"# the encoding becomes Windows-1250\n", "# all lines end in CR LF\n",
        "-HelpB=HELP.gif\n+HelpB=help.gif\n", "+Execute=%:\\setup.exe\n", "+ExtB=ext\n", "-Note=łóżko\n@@"})
    EXPECT_NE((shown.text + "@@").find(part), std::string::npos) << part << shown.text;
  EXPECT_EQ(Fix(disc).text, shown.text);
  EXPECT_EQ(TextOf(disc.Data() / "Menu.ini.old"), bad);
  EXPECT_TRUE(disc.MenuIni().ends_with("[Dalej]\r\nNote=a\r\n; \xB3\xF3\xBFko\r\n"));
  EXPECT_EQ(Fix(disc).text, "") << "nothing is left to mend";
  EXPECT_EQ(FindingsText(disc.Check()).find("differs"), std::string::npos);
}

TEST(Fix, ReadsEveryUnicodeEncodingAndLeavesWhatItCannotWrite) {
  GoodDisc disc;
  const std::string good = disc.MenuIni();
  disc.File("Data/Menu.ini", "\xEF\xBB\xBF" + FromWindows1250(good));
  Fix(disc);
  EXPECT_EQ(disc.Check().List().size(), 0U) << FindingsText(disc.Check());
  // ASCII is the same in both encodings.
  std::string ascii;
  for (const char c : good) ascii += static_cast<unsigned char>(c) < 0x80 ? c : 'x';
  std::string wide = "\xFE\xFF";
  for (const char c : ascii) wide += std::string{'\0', c};
  disc.File("Data/Menu.ini", wide);
  Fix(disc);
  EXPECT_EQ(disc.MenuIni(), ascii);
  disc.File("Data/Menu.ini", good + "; \xD0\x96\r\n");
  const DiscReport report = Fix(disc);
  EXPECT_TRUE(report.faults);
  EXPECT_NE(report.text.find("letters that Windows-1250 lacks"), std::string::npos);
  EXPECT_EQ(disc.MenuIni(), good + "; \xD0\x96\r\n");
}

}  // namespace
}  // namespace orvanta::test
