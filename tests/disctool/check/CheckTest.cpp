#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sstream>

#include "disctool/OutputText.h"
#include "disctool/check/CheckedDisc.h"
#include "disctool/disc/NearestName.h"

namespace orvanta::test {
namespace {

/// Changes a disc: "GLOBAL/BackX=500" sets a key and "-GLOBAL/BackX" removes it; "@help.gif=GIF" writes a
/// file of Data and "-@help.gif" removes it. Commas separate several changes.
void Change(GoodDisc& disc, const std::string& changes) {
  std::istringstream list(changes);
  for (std::string change; std::getline(list >> std::ws, change, ',');) {
    const bool removes = change.starts_with('-');
    const std::string name = change.substr(removes, change.find('=') - removes);
    const std::string value = removes ? "" : change.substr(name.size() + 1);
    const std::string section = name.substr(0, name.find('/')), key = name.substr(name.find('/') + 1);
    if (name[0] == '@' && removes) std::filesystem::remove(disc.Data() / name.substr(1));
    if (name[0] == '@' && !removes) disc.File("Data/" + name.substr(1), value);
    if (name[0] != '@') removes ? disc.Remove(section, key) : disc.Set(section, key, value);
  }
}

/// The findings of a disc: their ids, with an exclamation mark for errors, and the lines that they are in.
std::string Found(const GoodDisc& disc) {
  std::vector<std::string> lines{""};
  std::istringstream text(disc.MenuIni());
  for (std::string line; std::getline(text, line);) lines.push_back(line.substr(0, line.size() - 1));
  std::string found;
  const Findings findings = disc.Check();
  for (const Finding& finding : findings.List())
    found += (found.empty() ? "" : "; ") + std::string(finding.id) +
             (finding.severity == Finding::Severity::Error ? "! " : " ") +
             lines.at(static_cast<std::size_t>(finding.place.line));
  return found;
}

/// Mistakes of a maker, and the findings that they must cause, at these lines and no others.
constexpr const char* kFaults[][2] = {
    {"", ""},
    {"MAINMENU/Menu1=\"  Programy\"", ""},
    {"-GLOBAL/BackX", "missing-key! [GLOBAL]"},
    {"-GLOBAL/BackX, GLOBAL/BACKX=500", ""},
    {"-GLOBAL/StartPic, -GLOBAL/UnderPic, -VOICES/Start, -GLOBAL/ProducerB, -GLOBAL/ProducerX", ""},
    {"GLOBAL/BackX=left", "no-number! BackX=left"},
    {"GLOBAL/S2_Top=40000", "out-of-range! S2_Top=40000; outside! S2_Top=40000"},
    {"GLOBAL/S2_Top=2.5", "rounded S2_Top=2.5"},
    {"HEADLINE/Color=16777216", "no-colour! Color=16777216"},
    {"HEADLINE/FontBold=yes", "no-boolean! FontBold=yes"},
    {"GLOBAL/UpH=0", "senseless UpH=0"},
    {"@help.gif=GIF", "no-picture! HelpB=help.gif"},
    {"GLOBAL/HelpB=Sound", "special-file! HelpB=Sound"},
    {"GLOBAL/MainGfx=help.gif", "main-size MainGfx=help.gif"},
    {"GLOBAL/HelpB=HELP.gif", "other-case HelpB=HELP.gif"},
    {"-@ext2.gif", "no-file! ExtB=ext"},
    {"@menu.ttf=text", "no-font! FontFile=menu.ttf"},
    {"HEADLINE/FontName=Szyldd", "font-name FontName=Szyldd"},
    {"Film/Parameters=%:\\setup.exe", "not-playable! Parameters=%:\\setup.exe"},
    {"Gra/Execute=C:\\setup.exe", "off-the-disc Execute=C:\\setup.exe"},
    {"Gra/Execute=setup.exe", "no-drive Execute=setup.exe"},
    {"@x.exe=MZ, Gra/Execute=%:\\Data\\x.exe", "no-program! Execute=%:\\Data\\x.exe"},
    {"@x.sh=#!/bin/sh, Gra/Execute=%:\\Data\\x.sh", "not-executable Execute=%:\\Data\\x.sh"},
    {"@a.url=[InternetShortcut]\nURL=file:///E:/x.htm, Gra/Execute=%:\\Data\\a.url",
     "dead-shortcut Execute=%:\\Data\\a.url"},
    {"Gra/Parameters=%:\\x D:\\setup.EXE D:\\*.txt C:\\x /x",
     "no-parameter-file Parameters=%:\\x D:\\setup.EXE D:\\*.txt C:\\x /x"},
    {"Gra/Parameters=/s %:\\setup.exe", "late-drive Parameters=/s %:\\setup.exe"},
    {"-Gra/Shot1", "no-screenshot [Gra]"},
    {"Gra/Shot3=shot.gif", "behind-the-end Shot3=shot.gif"},
    {"-Muzyka/Parameters", "nothing-to-play! PlayAs=music"},
    {"Gra/PlayAs=MUSIC", "not-played PlayAs=MUSIC"},
    {"Programy/Menu2=Pustka", "inert Menu2=Pustka"},
    {"Programy/Menu1=Grra", "unreached [Gra]; inert Menu1=Grra"},
    {"GLOBAL/MainGxf=main.gif", "unknown-key MainGxf=main.gif"},
    {"Programy/Note=O nich", "menu-and-entry Note=O nich"},
    {"Programy/Execute=%:\\setup.exe", "menu-and-entry Execute=%:\\setup.exe"},
    {"MAINMENU/Menu4=Voices, VOICES/Menu1=Gra", "fixed-section-as-menu [VOICES]"},
    {"Programy/Menu2=MainMenu", "circle Menu2=MainMenu"},
    {"GLOBAL/MenuLevels=1", "too-deep! Menu1=Gra"},
    {"GLOBAL/MenuLevels=1, Programy/Menu1=Nic", "unreached [Gra]; inert Menu1=Nic"},
    {"MENUITEM/LabelPosY=300, SLIDER/YMax=40", "no-travel! YMax=40"},
    {"SLIDER/PosX=472", "knob-outside! YMax=240"},
    {"SLIDER/YMax=300", "knob-partly-outside YMax=300"},
    {"GLOBAL/ExtX=0, GLOBAL/ExtY=0", "outside! ExtX=0"},  // in the corner that the outline cuts off
    {"GLOBAL/MinY=900", "outside! MinY=900"},
    {"GLOBAL/ProducerY=-3000", "outside! ProducerY=-3000"},
    {"GLOBAL/S2_Top=773", "outside! S2_Top=773"},
    {"SLIDER/SliderBarX=3000", "outside! SliderBarX=3000"},
    {"MENUITEM/BackTxt2X=600", "outside! BackTxt2X=600"},
    {"CINEMA/CMiddY=-3000", "outside! CMiddY=-3000"},
    {"CINEMA/CStopX=590", "partly-outside CStopX=590"},
};

TEST(Check, EachMistakeIsFoundAtItsLineAndNothingElse) {
  for (const auto& [changes, found] : kFaults) {
    GoodDisc disc;
    Change(disc, changes);
    EXPECT_EQ(Found(disc), found) << changes << "\n" << FindingsText(disc.Check());
  }
  GoodDisc script;
  script.File("start.sh", "#!/bin/sh\r\n");
  std::filesystem::permissions(script.Folder() / "start.sh", std::filesystem::perms::owner_all);
  script.Set("Gra", "Execute", "%:\\start.sh");
  EXPECT_EQ(Found(script), "script-line-ends! Execute=%:\\start.sh");
  GoodDisc button;
  button.Picture("ext1.gif", 40, 24);
  EXPECT_EQ(Found(button), "looks-differ ExtB=ext");
  GoodDisc huge;
  huge.Picture("help.gif", 1200, 1000);
  EXPECT_EQ(Found(huge), "picture-too-large! HelpB=help.gif");
  GoodDisc slip;
  slip.Set("VOICES", "Exi3t", "x.wav");
  EXPECT_NE(FindingsText(slip.Check()).find("did you mean Exit3?"), std::string::npos);
  GoodDisc disc;
  disc.Set("Gra", "Note", std::string(254, 'x'));
  EXPECT_EQ(Found(disc), "");
  disc.Set("Gra", "Note", std::string(255, 'x'));
  EXPECT_EQ(Found(disc), "value-cut Note=" + std::string(255, 'x'));
}

TEST(Check, TextThatTheLookupReadsDifferentlyFromHowItLooksIsFound) {
  const char* const cases[][2] = {{"\xEF\xBB\xBF\r\n", "byte-order-mark!"},
                                  {"Menu1=Gra\r\n", "above-sections"},
                                  {"words\r\n", "no-equals"},
                                  {"=value\r\n", "no-key"},
                                  {"; \xC5\x82\r\n", "utf-8!"},
                                  {"; \x81\r\n", "outside-code-page"}};
  for (const auto& [text, id] : cases) {
    GoodDisc disc;
    disc.File("Data/Menu.ini", text + disc.MenuIni());
    EXPECT_NE(Found(disc).find(id), std::string::npos) << id << "\n" << FindingsText(disc.Check());
  }
  GoodDisc disc;
  disc.File("Data/Menu.ini", disc.MenuIni() + "[Gra]\r\nNote=x\r\n[Muzyka\r\n");
  EXPECT_EQ(Found(disc), "section-twice [Gra]; no-bracket [Muzyka; section-twice [Muzyka");
  disc.Set("MAINMENU", "Menu4", "\x1B[2Jx");
  EXPECT_NE(FindingsText(disc.Check()).find("\\x1B[2Jx"), std::string::npos)
      << "no command may reach the terminal";
  EXPECT_EQ(JsonText("\x1B\"\\\xFFł"), "\"\\u001B\\\"\\\\\xEF\xBF\xBDł\"");
}

TEST(Check, OnlyADeepCheckFindsATruncatedFilm) {
  GoodDisc disc;
  FirstBytesProbe probe;
  disc.File("film.avi", "film cut");
  EXPECT_EQ(disc.Check().List().size(), 0U);
  const Findings findings = CheckDisc(FolderTree(disc.Folder()), probe, true);
  ASSERT_EQ(findings.List().size(), 1U);
  EXPECT_EQ(findings.List()[0].id, "breaks-off");
}

// One fault is one finding, not one for each setting that it hides.
TEST(Check, AFileInAnotherEncodingOrWithMixedLineBreaksIsReportedOnce) {
  GoodDisc disc;
  const std::string good = disc.MenuIni();
  std::string wide = "\xFF\xFE";
  for (const char c : good) wide += std::string{c, '\0'};
  const std::pair<std::string, const char*> cases[] = {{wide, "utf-16"},
                                                       {wide.substr(2), "utf-16"},
                                                       {"\xEF\xBB\xBF" + good, "byte-order-mark"},
                                                       {"; a\n" + good, "mixed-line-ends"}};
  for (const auto& [text, id] : cases) {
    disc.File("Data/Menu.ini", text);
    const Findings findings = disc.Check();
    ASSERT_EQ(findings.List().size(), 1U) << FindingsText(findings);
    EXPECT_EQ(findings.List()[0].id, id);
  }
}

TEST(Check, LinksThatLeadOffTheDiscAreFound) {
  GoodDisc disc, other;
  std::filesystem::create_symlink(other.Data() / "help.gif", disc.Data() / "bonus.gif");
  std::filesystem::create_symlink("help.gif", disc.Data() / "inside.gif");
  const Findings findings = disc.Check();
  ASSERT_EQ(findings.List().size(), 1U) << FindingsText(findings);
  EXPECT_EQ(findings.List()[0].id, "link-off-the-disc");
  EXPECT_EQ(findings.List()[0].place.file, disc.Data() / "bonus.gif");
}

TEST(NearestName, ComparesLettersAndNotTheBytesOfTheirCode) {
  const std::array<std::string_view, 2> known = {"Ryby", "żółć"};
  EXPECT_EQ(NearestName("ŻÓŁĆ", known), "żółć");
  EXPECT_EQ(NearestName("żół", known), "żółć");
  EXPECT_EQ(NearestName("Ptaki", known), "");
}

TEST(Check, AMissingSectionFileOrDiscIsReportedOnce) {
  GoodDisc disc;
  for (const auto& [section, key] : disc.Keys())
    if (section == "CINEMA") disc.Remove(section, key);
  EXPECT_EQ(Found(disc), "missing-section! [Film]");
  GoodDisc two;
  two.Remove("GLOBAL", "BackX");
  two.File("Data/Param.ini", "[GLOBAL]\r\nBackX=500\r\nBackY=100\r\n");
  EXPECT_TRUE(FindingsText(two.Check()).starts_with((two.Data() / "Param.ini").string() + ":3: "));
  FirstBytesProbe probe;
  EXPECT_EQ(CheckDisc(FolderTree(disc.Data() / "Sound"), probe).Errors(), 1U);
}

}  // namespace
}  // namespace orvanta::test
