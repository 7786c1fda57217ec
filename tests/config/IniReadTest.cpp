#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "config/IniRead.h"
#include "config/NumberedKey.h"
#include "config/Settings.h"
#include "config/Windows1250.h"
#include "support/TemporaryFolder.h"

namespace orvanta::test {
namespace {

/// A disc that is nothing but its two files, whose texts are UTF-8 here.
class IniReadTest : public ::testing::Test {
 protected:
  void Menu(const std::string& text) { disc.File("Data/Menu.ini", ToWindows1250(text).value()); }
  void Param(const std::string& text) { disc.File("Data/Param.ini", ToWindows1250(text).value()); }
  std::string Read(std::string_view section, std::string_view key) {
    return ini.IniRead(section, key, kMenuFile);
  }

  TemporaryFolder disc;
  INI_Read ini{"D:\\", DiscDrive(disc.Path())};
  Settings settings{ini};
};

TEST_F(IniReadTest, AsksTheSecondFileOnlyForWhatTheFirstLacks) {
  EXPECT_EQ(Read("s", "both"), "");
  Param("[s]\nboth=2\nempty=2\nsecond=2\n[t]\nk=2\n");
  EXPECT_EQ(Read("s", "both"), "2");
  Menu("[s]\nboth=1\nempty=\n");
  EXPECT_EQ(Read("s", "both"), "1");
  EXPECT_EQ(Read("s", "empty"), "2");
  EXPECT_EQ(Read("S", "SECOND"), "2");
  EXPECT_EQ(Read("t", "k"), "2");
  EXPECT_EQ(Read("t", "none"), "");
  EXPECT_EQ(ini.IniRead("s", "both", "None.ini"), "2");
}

TEST_F(IniReadTest, FindsTheFilesInAnyMixOfCapitals) {
  disc.File("DATA/MENU.INI", "[s]\nk=1\n");
  disc.File("DATA/param.ini", "[s]\nj=2\n");
  EXPECT_EQ(Read("s", "k") + Read("s", "j"), "12");
}

TEST_F(IniReadTest, PutsTheDriveForThePercentSign) {
  Menu("[s]\na=%:\\Demo\\setup.exe\nb=%:\nc=%x\nd=x%:\\y\ne=%%:\nf=\"%:\\q\"\n");
  Param("[s]\np=%:\\p\n");
  EXPECT_EQ(Read("s", "a"), "D:\\Demo\\setup.exe");
  EXPECT_EQ(Read("s", "b"), "D:");
  EXPECT_EQ(Read("s", "c"), "%x");
  EXPECT_EQ(Read("s", "d"), "x%:\\y");
  EXPECT_EQ(Read("s", "e"), "%%:");
  EXPECT_EQ(Read("s", "f"), "D:\\q");
  EXPECT_EQ(Read("s", "p"), "D:\\p");
  EXPECT_EQ(INI_Read("\\", DiscDrive(disc.Path())).IniRead("s", "a", kMenuFile), "\\:\\Demo\\setup.exe");
}

TEST_F(IniReadTest, ConvertsAtItsEdge) {
  Menu("[Żółw]\nOpis=Zażółć gęślą jaźń\n");
  EXPECT_EQ(Read("żÓŁW", "opis"), "Zażółć gęślą jaźń");
  EXPECT_EQ(Read("Żółw", "Ω"), "");
  EXPECT_EQ(Read("日", "Opis"), "");
  // 254 bytes of the file are 508 of UTF-8: the cut comes first, and through no letter.
  std::string polish, cut;
  for (int i = 0; i < 300; ++i) polish += "ą";
  for (int i = 0; i < 254; ++i) cut += "ą";
  Menu("[s]\nk=" + polish);
  EXPECT_EQ(Read("s", "k"), cut);
}

TEST_F(IniReadTest, MakesPathsOfValues) {
  EXPECT_EQ(ini.PicturePath("Art\\main.gif"), "D:\\Data\\Art\\main.gif");
  EXPECT_EQ(ini.PicturePath("C:\\x.gif"), "D:\\Data\\C:\\x.gif");
  EXPECT_EQ(ini.SoundPath("loop.wav"), "D:\\Data\\Sound\\loop.wav");
  EXPECT_EQ(ini.SoundPath("D:\\Music\\a.mid"), "D:\\Music\\a.mid");
  EXPECT_EQ(ini.SoundPath("ą:\\a.mid"), "ą:\\a.mid");
  EXPECT_EQ(ini.SoundPath("a"), "D:\\Data\\Sound\\a");
  EXPECT_EQ(ini.SoundPath("ab:"), "D:\\Data\\Sound\\ab:");
  EXPECT_EQ(ini.SoundPath(""), "D:\\Data\\Sound\\");
}

TEST_F(IniReadTest, CountsARunUpToItsFirstGap) {
  EXPECT_EQ(CountRun(ini, "MAINMENU", "Menu"), 0);
  Menu("[MAINMENU]\nMenu1=a\nMenu2=b\nMenu4=d\nMenu05=e\n");
  EXPECT_EQ(CountRun(ini, "MAINMENU", "Menu"), 2);
  Param("[MAINMENU]\nMenu3=c\n");
  EXPECT_EQ(CountRun(ini, "MAINMENU", "Menu"), 4);
  std::string endless = "[MAINMENU]\n";
  for (int i = 1; i <= 1100; ++i) endless += NumberedKey("Menu", i) + "=x\n";
  Menu(endless);
  EXPECT_EQ(CountRun(ini, "MAINMENU", "Menu"), 1001);
}

TEST_F(IniReadTest, KeepsSettingsOfOneNameApart) {
  Menu(
      "[HEADLINE]\nFontSize=14\nFontBold=True\nLeft=1,5\nColor=255\nFontFile=a.ttf\n[MENUITEM]\nFontSize=8\n"
      "[SLIDER]\nYMin=10\n[SHOTSLIDER]\nYMin=20\n[VOICES]\nMusic=%:\\a.mid\nStart=b.wav\nTool0=x\n"
      "[GLOBAL]\nBackX=40000\nMainGfx=main.gif\nExtB=Buttons\\ext\n");
  EXPECT_EQ(settings.Whole({"HEADLINE", "FontSize"}), 14);
  EXPECT_EQ(settings.Whole({"MENUITEM", "FontSize"}), 8);
  EXPECT_TRUE(settings.Boolean({"HEADLINE", "FontBold"}));
  EXPECT_FALSE(settings.Boolean({"MENUITEM", "FontBold"}));
  EXPECT_EQ(settings.Single({"HEADLINE", "Left"}), 1.5f);
  EXPECT_EQ(settings.Double({"SLIDER", "YMin"}), 10);
  EXPECT_EQ(settings.Double({"SHOTSLIDER", "YMin"}), 20);
  EXPECT_EQ(settings.Colour({"HEADLINE", "Color"}), 0xFF);
  EXPECT_EQ(settings.Whole({"GLOBAL", "BackX"}), 32767);
  EXPECT_EQ(settings.Picture({"GLOBAL", "MainGfx"}), "D:\\Data\\main.gif");
  EXPECT_EQ(settings.Base({"GLOBAL", "ExtB"}), "D:\\Data\\Buttons\\ext");
  EXPECT_EQ(settings.Font({"HEADLINE", "FontFile"}), "D:\\Data\\a.ttf");
  EXPECT_EQ(settings.Sound({"VOICES", "Music"}), "D:\\a.mid");
  EXPECT_EQ(settings.Sound({"VOICES", "Start"}), "D:\\Data\\Sound\\b.wav");
  EXPECT_FALSE(settings.Has<Kind::Picture>({"GLOBAL", "StartPic"}));
  EXPECT_TRUE(settings.Has<Kind::Any>({"VOICES", "Tool0"}));
}

TEST(Schema, NamesEveryKeyOnce) {
  std::set<std::pair<std::string_view, std::string_view>> names;
  for (const SchemaKey& key : kSchema) {
    EXPECT_TRUE(names.emplace(key.section, key.name).second) << key.section << " " << key.name;
  }
}

}  // namespace
}  // namespace orvanta::test
