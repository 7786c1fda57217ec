// How the paths, settings and values of a disc are read.

#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <limits>

#include "config/Fold1250.h"
#include "config/NumberedKey.h"
#include "config/Settings.h"
#include "config/Values.h"
#include "config/Windows1250.h"
#include "disctool/disc/DiscTree.h"
#include "support/TemporaryFolder.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// A path, and either what it leads to from the root of the disc, or what is missing.
constexpr const char* kPaths[][2] = {{"D:\\Data\\Menu.ini", "Data/Menu.ini"},
                                     {"d:\\DATA\\mENU.ini", "Data/MENU.INI"},  // the first of two
                                     {"D:/data/ŻABA\\gęŚ.gif", "Data/Żaba/Gęś.GIF"},
                                     {"\\", "."},
                                     {"", "(file)"},
                                     {"D:\\None\\Menu.ini", "(folder)"},
                                     {"D:\\Data\\Menu.ini\\x", "(folder)"},
                                     {"\\\\server\\share\\x", "(folder)"},
                                     {"D:\\..\\..\\Data\\.\\None\\..\\\\Żaba\\..\\Menu.ini", "Data/Menu.ini"},
                                     {"\\..\\outside.txt", "(file)"},
                                     {"..\\..\\outside.txt", "(file)"},
                                     {"mENU.ini", "Data/MENU.INI"},  // of the current folder
                                     {"D:Data\\Menu.ini", "Data/Menu.ini"},
                                     {"D:\\linked\\menu.ini", "Linked/MENU.INI"},
                                     {"D:\\round\\x", "(folder)"},
                                     {"D:\\\xFF\xFE", "(file)"}};

TEST(DiscDrive, FindsNamesIgnoringCaseAndNeverLeavesItsRoot) {
  const TemporaryFolder folder;
  const fs::path root = folder.Path() / "disc";
  for (const char* file :
       {"disc/Data/Menu.ini", "disc/Data/MENU.INI", "disc/Data/Żaba/Gęś.GIF", "outside.txt"})
    folder.File(file, "");
  fs::create_directory_symlink("Data", root / "Linked");
  fs::create_directory_symlink("Round", root / "Round");
  const DiscDrive drive(root);
  const FolderTree tree(root);
  fs::current_path(root / "Data");
  for (const auto& [path, expected] : kPaths) {
    const FoundPath found = drive.Find(path);
    const char* const missing = found.outcome == FoundPath::Outcome::FileMissing ? "(file)" : "(folder)";
    EXPECT_EQ(found ? found.path.lexically_relative(root).string() : missing, expected) << path;
    const FoundPath byTool = tree.Find(path);
    // The tool has no current folder, so paths that depend on it are only for the shell.
    if (path == std::string() || std::string_view("Dd\\").find(*path) == std::string_view::npos) continue;
    EXPECT_EQ(byTool.outcome, found.outcome) << path;
    EXPECT_EQ(byTool ? tree.Place(byTool.path) : fs::path(), found.path) << path;
  }
  // If a folder may not be searched, its files count as existing for both the shell and the tool, and opening
  // one fails with the true reason.
  fs::permissions(folder.Path(), fs::perms::all);
  fs::permissions(root / "Data", fs::perms::none);
  const bool poor = getuid() != 0 || seteuid(65534) == 0;
  const auto found = drive.Find("D:\\Data\\x").outcome, byTool = tree.Find("D:\\Data\\x").outcome;
  EXPECT_EQ(seteuid(getuid()), 0);
  EXPECT_EQ(found, poor ? FoundPath::Outcome::Found : FoundPath::Outcome::FileMissing);
  EXPECT_EQ(byTool, found);
  fs::current_path(fs::temp_directory_path());
  EXPECT_FALSE(drive.Find(std::string_view("D:\\Data\\Menu.ini\0x", 18)));
  EXPECT_FALSE(drive.Find("D:\\" + std::string(1 << 20, '\\') + "Data")) << "an absurd path takes no time";
}

/// A disc with nothing but its two files, whose texts are in UTF-8 here.
class IniReadTest : public ::testing::Test {
 protected:
  void Write(const char* file, const std::string& text) { disc.File(file, ToWindows1250(text).value()); }
  std::string Read(std::string_view section, std::string_view key) {
    return ini.IniRead(section, key, kMenuFile);
  }

  TemporaryFolder disc;
  INI_Read ini{"D:\\", DiscDrive(disc.Path())};
};

TEST_F(IniReadTest, LooksInTheSecondFileForWhatTheFirstLacksAndConvertsTheTexts) {
  EXPECT_EQ(Read("s", "both"), "");
  Write("Data/Param.ini", "[s]\nboth=2\nempty=2\nsecond=%:\\p\n");
  EXPECT_EQ(Read("s", "both"), "2");
  std::string polish;
  for (int i = 0; i < 300; ++i) polish += "ą";
  Write("Data/Menu.ini",
        "[s]\nboth=1\nempty=\nb=%:\nc=%x\nd=x%:\\y\nf=\"%:\\q\"\nlong=" + polish + "\n[Żółw]\nOpis=Zażółć\n");
  EXPECT_EQ(Read("s", "both") + Read("s", "empty") + Read("S", "SECOND") + Read("t", "k"), "12D:\\p");
  EXPECT_EQ(Read("s", "b") + Read("s", "c") + Read("s", "d") + Read("s", "f"), "D:%xx%:\\yD:\\q");
  EXPECT_EQ(INI_Read("\\", DiscDrive(disc.Path())).IniRead("s", "f", kMenuFile), "\\:\\q");
  EXPECT_EQ(Read("żÓŁW", "opis") + Read("Żółw", "Ω") + Read("日", "Opis"), "Zażółć");
  EXPECT_EQ(Read("s", "long"), polish.substr(0, 508))
      << "254 bytes of the file, cut before the conversion and so not inside a letter";
}

TEST_F(IniReadTest, MakesPathsOfSoundsAndLimitsAnEndlessRun) {
  EXPECT_EQ(ini.SoundPath("ą:\\a.mid"), "ą:\\a.mid");
  EXPECT_EQ(ini.SoundPath("ab:"), "D:\\Data\\Sound\\ab:");
  EXPECT_EQ(ini.SoundPath(""), "D:\\Data\\Sound\\");
  std::string endless = "[MAINMENU]\n";
  for (int i = 1; i <= 1100; ++i) endless += NumberedKey("Menu", i) + "=x\n";
  Write("Data/Menu.ini", endless);
  EXPECT_EQ(CountRun(ini, "MAINMENU", "Menu"), 1001);
}

TEST(Values, AreRoundedToTheNearestWithTiesToEvenAndClamped) {
  const double cases[][2] = {{0.5, 0},         {1.5, 2},       {-0.5, 0},          {-1.5, -2},
                             {-2.5, -2},       {2.49, 2},      {-2.51, -3},        {4e4, 32767},
                             {32767.5, 32767}, {-4e4, -32768}, {-32768.5, -32768}, {0.49999999999999994, 0},
                             {std::nan(""), 0}};
  for (const auto& [value, expected] : cases) EXPECT_EQ(CInt(value), expected) << value;
  EXPECT_EQ(CLng(2147483646.5), 2147483646);
  EXPECT_EQ(CLng(-1e300), std::numeric_limits<std::int32_t>::min());
  const std::pair<const char*, double> numbers[] = {
      {" +7\t", 7},  {"-3.5", -3.5},      {"2,25", 2.25},
      {"1e2", 100},  {".25", .25},        {"5.", 5},
      {"1e-999", 0}, {"-0.0001e-999", 0}, {"1e999", std::numeric_limits<double>::max()}};
  for (const auto& [text, number] : numbers) EXPECT_EQ(DoubleOf(text), number) << text;
  EXPECT_EQ(WholeOf("-99999999999999999999"), -32768);
  EXPECT_EQ(SingleOf("-1e39"), std::numeric_limits<float>::lowest());
  EXPECT_EQ(SingleOf("-0." + std::string(60, '0') + "1"), 0);
  for (const char* text :
       {"",      " ",       "12 px", "1 2", "0x10", "inf", "nan", "-",      "+-5",   "--5",
        "1.2.3", "1,000.5", ",",     "e5",  "1e",   "٣",   "10%", "Truely", "False", "-0"}) {
    EXPECT_EQ(DoubleOf(text), 0) << text;
    EXPECT_FALSE(BooleanOf(text)) << text;
  }
  for (const char* text : {" TRUE ", "-1", "0.4", "1e999"}) EXPECT_TRUE(BooleanOf(text)) << text;
}

TEST(Windows1250, RestoresEveryByteFoldsCapitalsAndRefusesWhatItCannotWrite) {
  EXPECT_EQ(FromWindows1250("Za\xBF\xF3\xB3\xE6 g\xEA\x9Cl\xB9 ja\x9F\xF1 \x80"), "Zażółć gęślą jaźń €");
  const std::string capitals = "ABCXYZŠŚŤŽŹŁĄŞŻĽŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖŘŮÚŰÜÝŢ";
  EXPECT_TRUE(EqualNoCase(capitals, "abcxyzšśťžźłąşżľŕáâăäĺćçčéęëěíîďđńňóôőöřůúűüýţ"));
  std::size_t changed = 0;
  for (int i = 0; i < 256; ++i) {
    const std::string byte(1, static_cast<char>(i));
    EXPECT_EQ(ToWindows1250(FromWindows1250(byte)), byte) << i;
    changed += i >= 128 && Fold1250(byte[0]) != byte[0];
  }
  EXPECT_EQ(changed, ToWindows1250(capitals)->size() - 6);
  for (const auto& [one, other] : {std::pair{"×", "÷"}, {"a", "ab"}, {"Ω", "ω"}})
    EXPECT_FALSE(EqualNoCase(one, other)) << one;
  EXPECT_TRUE(EqualNoCase("Ω-Setup", "Ω-SETUP")) << "outside the code page only A to Z fold";
  for (const char* text :
       {"Ω", "😀", "\u0080", "\x80", "\xC5", "\xC5z", "\xC1\xA1", "\xE0\x81\xA1", "\xE2\x82"})
    EXPECT_EQ(ToWindows1250(text), std::nullopt) << text;
}

}  // namespace
}  // namespace orvanta::test
