#include <gtest/gtest.h>

#include <functional>

#include "disctool/CheckedDisc.h"
#include "disctool/OutputText.h"

namespace orvanta::test {
namespace {

/// The findings of a disc, one a line: "id line-of-Menu.ini", errors with an exclamation mark.
std::vector<std::string> Found(const GoodDisc& disc) {
  std::vector<std::string> found;
  const Findings findings = disc.Check();
  for (const Finding& finding : findings.List())
    found.push_back(std::string(finding.id) + (finding.severity == Finding::Severity::Error ? "!" : "") +
                    " " + std::to_string(finding.place.line));
  return found;
}

TEST(Check, AGoodDiscHasNoFinding) {
  const GoodDisc disc;
  EXPECT_EQ(FindingsText(disc.Check()), "");
}

struct Fault {
  const char* what;
  std::function<void(GoodDisc&)> make;
  std::vector<std::pair<std::string, std::string>> found;  ///< id, and how its line begins; empty for no line
};

/// What a maker does wrong, and the findings that this must give: these, at these lines, and no other.
const std::vector<Fault> kFaults = {
    {"a mandatory key left out",
     [](auto& d) { d.Remove("GLOBAL", "BackX"); },
     {{"missing-key!", "[GLOBAL]"}}},
    {"optional keys left out",
     [](auto& d) {
       d.Remove("GLOBAL", "ProducerB");
       d.Remove("GLOBAL", "ProducerX");
       d.Remove("VOICES", "Tool0");
     },
     {}},
    {"no start screen and nothing that only it needs",
     [](auto& d) {
       d.Remove("GLOBAL", "StartPic");
       d.Remove("GLOBAL", "UnderPic");
       d.Remove("VOICES", "Start");
     },
     {}},
    {"words for a number", [](auto& d) { d.Set("GLOBAL", "BackX", "left"); }, {{"no-number!", "BackX="}}},
    {"a number beyond 16 bits",
     [](auto& d) { d.Set("GLOBAL", "S2_Top", "40000"); },
     {{"out-of-range!", "S2_Top="}}},
    {"a fraction for a whole number",
     [](auto& d) { d.Set("GLOBAL", "S2_Top", "2.5"); },
     {{"rounded", "S2_Top="}}},
    {"a fraction where it is welcome", [](auto& d) { d.Set("HEADLINE", "Left", "2,5"); }, {}},
    {"a colour in hexadecimal",
     [](auto& d) { d.Set("HEADLINE", "Color", "&H00FFFF"); },
     {{"no-number!", "Color="}}},
    {"a colour with a fourth byte",
     [](auto& d) { d.Set("HEADLINE", "Color", "16777216"); },
     {{"no-colour!", "Color="}}},
    {"yes for True", [](auto& d) { d.Set("HEADLINE", "FontBold", "yes"); }, {{"no-boolean!", "FontBold="}}},
    {"a click zone without a height", [](auto& d) { d.Set("GLOBAL", "UpH", "0"); }, {{"senseless", "UpH="}}},
    {"a picture that is not there",
     [](auto& d) { d.Set("GLOBAL", "HelpB", "pomoc.gif"); },
     {{"no-file!", "HelpB="}}},
    {"a picture that is none", [](auto& d) { d.File("Data/help.gif", "GIF"); }, {{"no-picture!", "HelpB="}}},
    {"a picture called otherwise in capitals",
     [](auto& d) { d.Set("GLOBAL", "HelpB", "HELP.gif"); },
     {{"other-case", "HelpB="}}},
    {"one look of a button left out",
     [](auto& d) { std::filesystem::remove(d.Data() / "ext2.gif"); },
     {{"no-file!", "ExtB="}}},
    {"a folder for a picture",
     [](auto& d) { d.Set("GLOBAL", "HelpB", "Sound"); },
     {{"no-picture!", "HelpB="}}},
    {"a font that is none",
     [](auto& d) { d.File("Data/menu.ttf", "text"); },
     {{"no-font!", "FontFile=menu"}}},
    {"a voice that is none",
     [](auto& d) { d.Set("VOICES", "Exit1", "..\\main.gif"); },
     {{"not-playable!", "Exit1="}}},
    {"a sound for a film",
     [](auto& d) { d.Set("Film", "Parameters", "%:\\Data\\Sound\\start.wav"); },
     {{"not-playable!", "Parameters=%:\\Data\\Sound\\start.wav"}}},
    {"a program that is not there",
     [](auto& d) { d.Set("Gra", "Execute", "%:\\gra.exe"); },
     {{"no-file!", "Execute="}}},
    {"a program on the maker's own drive",
     [](auto& d) { d.Set("Gra", "Execute", "C:\\setup.exe"); },
     {{"off-the-disc", "Execute="}}},
    {"a program without a drive",
     [](auto& d) { d.Set("Gra", "Execute", "setup.exe"); },
     {{"no-drive", "Execute="}}},
    {"an address", [](auto& d) { d.Set("Gra", "Execute", "https://example.org/"); }, {}},
    {"an entry without a screenshot",
     [](auto& d) { d.Remove("Gra", "Shot1"); },
     {{"no-screenshot", "[Gra]"}}},
    {"a gap in the screenshots",
     [](auto& d) { d.Set("Gra", "Shot3", "shot.gif"); },
     {{"behind-the-end", "Shot3="}}},
    {"music without a file",
     [](auto& d) { d.Remove("Muzyka", "Parameters"); },
     {{"nothing-to-play!", "PlayAs=music"}}},
    {"a program that is also to be played",
     [](auto& d) { d.Set("Gra", "PlayAs", "MUSIC"); },
     {{"not-played", "PlayAs=MUSIC"}}},
    {"an item without a section",
     [](auto& d) {
       d.Menu("Programy", {"Gra", "Pustka"});
     },
     {{"inert", "Menu2=Pustka"}}},
    {"a section misspelt in its menu",
     [](auto& d) { d.Menu("Programy", {"Grra"}); },
     {{"inert", "Menu1=Grra"}, {"unreached", "[Gra]"}}},
    {"a gap in a menu", [](auto& d) { d.Set("MAINMENU", "Menu5", "Gra"); }, {{"behind-the-end", "Menu5="}}},
    {"a leading zero", [](auto& d) { d.Set("MAINMENU", "Menu04", "Gra"); }, {{"behind-the-end", "Menu04="}}},
    {"a key misspelt",
     [](auto& d) { d.Set("GLOBAL", "MainGxf", "main.gif"); },
     {{"unknown-key", "MainGxf="}}},
    {"a key in another mix of capitals",
     [](auto& d) {
       d.Remove("GLOBAL", "BackX");
       d.Set("GLOBAL", "BACKX", "500");
     },
     {}},
    {"a description of a menu",
     [](auto& d) { d.Set("Programy", "Note", "Opis"); },
     {{"menu-and-entry", "Note="}}},
    {"a menu that is an entry too",
     [](auto& d) { d.Set("Programy", "Execute", "%:\\setup.exe"); },
     {{"menu-and-entry", "Execute=%:\\setup.exe"}}},
    {"a menu called like a section of settings",
     [](auto& d) {
       d.Menu("MAINMENU", {"Programy", "Muzyka", "Film", "Voices"});
       d.Set("VOICES", "Menu1", "Gra");
     },
     {{"fixed-section-as-menu", "[VOICES]"}}},
    {"a menu that leads back to itself",
     [](auto& d) {
       d.Menu("Programy", {"Gra", "MainMenu"});
     },
     {{"circle", "Menu2=MainMenu"}}},
    {"an entry below the last level",
     [](auto& d) { d.Set("GLOBAL", "MenuLevels", "1"); },
     {{"too-deep!", "Menu1=Gra"}}},
    {"a value of 255 characters",
     [](auto& d) { d.Set("Gra", "Note", std::string(255, 'x')); },
     {{"value-cut", "Note=xx"}}},
    {"a value of 254 characters", [](auto& d) { d.Set("Gra", "Note", std::string(254, 'x')); }, {}},
    {"a list that overflows a slider without travel",
     [](auto& d) {
       for (int i = 1; i <= 12; ++i) d.Set("Programy", "Menu" + std::to_string(i), "Gra");
       d.Set("SLIDER", "YMax", "40");
     },
     {{"no-travel!", "YMax="}}},
    {"a knob beside the menu", [](auto& d) { d.Set("SLIDER", "PosX", "472"); }, {{"knob-outside!", "YMax="}}},
    {"a knob that runs out of the menu",
     [](auto& d) { d.Set("SLIDER", "YMax", "300"); },
     {{"knob-partly-outside", "YMax="}}},
    {"a button beside the window", [](auto& d) { d.Set("GLOBAL", "ExtX", "700"); }, {{"outside!", "ExtX="}}},
    {"a button in the corner that the outline cuts off",
     [](auto& d) {
       d.Set("GLOBAL", "ExtX", "0");
       d.Set("GLOBAL", "ExtY", "0");
     },
     {{"outside!", "ExtX="}}},
    {"a button across the cinema's edge",
     [](auto& d) { d.Set("CINEMA", "CStopX", "590"); },
     {{"partly-outside", "CStopX="}}},
};

TEST(Check, EachFaultOfAMakerIsFoundAtItsLine) {
  for (const Fault& fault : kFaults) {
    GoodDisc disc;
    fault.make(disc);
    std::vector<std::string> expected;
    for (const auto& [id, line] : fault.found) {
      EXPECT_GT(disc.LineOf(line), 0) << fault.what << ": " << line;
      expected.push_back(id + " " + std::to_string(disc.LineOf(line)));
    }
    EXPECT_EQ(Found(disc), expected) << fault.what << "\n" << FindingsText(disc.Check());
  }
}

TEST(Check, TextsThatTheLookupReadsOtherwiseThanTheyLookAreFound) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"\xEF\xBB\xBF", "byte-order-mark!"},
      {"Menu1=Gra\r\n", "above-sections"},
      {"just words\r\n", "no-equals"},
      {"=value\r\n", "no-key"},
      {"; \xC5\x82\xC3\xB3\xC5\xBC\r\n", "utf-8!"},
      {"; \x81\r\n", "outside-code-page"},
  };
  for (const auto& [text, id] : cases) {
    GoodDisc disc;
    disc.File("Data/Menu.ini", text + disc.MenuIni());
    const auto found = Found(disc);
    EXPECT_NE(std::ranges::find(found, id + " 1"), found.end()) << id << "\n" << FindingsText(disc.Check());
  }
  GoodDisc disc;
  disc.File("Data/Menu.ini", disc.MenuIni() + "[Gra]\r\nNote=x\r\n[Muzyka\r\n");
  EXPECT_EQ(Found(disc),
            (std::vector<std::string>{"section-twice " + std::to_string(disc.LineOf("[Film]") + 6),
                                      "no-bracket " + std::to_string(disc.LineOf("[Muzyka\r")),
                                      "section-twice " + std::to_string(disc.LineOf("[Muzyka\r"))}))
      << FindingsText(disc.Check());
}

TEST(Check, TheSecondFileIsTakenIntoAccount) {
  GoodDisc disc;
  disc.Remove("GLOBAL", "BackX");
  disc.File("Data/Param.ini", "[GLOBAL]\r\nBackX=500\r\nBackY=100\r\n");
  const Findings findings = disc.Check();
  ASSERT_EQ(findings.List().size(), 1U) << FindingsText(findings);
  EXPECT_EQ(findings.List()[0].id, "hidden-key");
  EXPECT_EQ(findings.List()[0].place.file, disc.Data() / "Param.ini");
  EXPECT_EQ(findings.List()[0].place.line, 3);
}

TEST(Check, AMissingSectionIsOneFinding) {
  GoodDisc disc;
  for (const auto& [section, key] : disc.Keys())
    if (section == "CINEMA") disc.Remove(section, key);
  EXPECT_EQ(Found(disc), std::vector<std::string>{"missing-section! 1"});
  disc.Remove("MAINMENU", "Menu3");
  EXPECT_EQ(Found(disc).at(0), "missing-section 1") << "no film asks for the cinema any more";
}

TEST(Check, AFolderWithoutADiscIsAFault) {
  const GoodDisc disc;
  FirstBytesProbe probe;
  EXPECT_EQ(CheckDisc(disc.Data() / "Sound", probe).Errors(), 1U);
  EXPECT_EQ(CheckDisc(disc.Folder() / "nowhere", probe).Errors(), 1U);
}

TEST(Check, ADiscSendsNoCommandsToTheTerminal) {
  GoodDisc disc;
  disc.Set("MAINMENU", "Menu4", "\x1B[2Jx");
  const std::string text = FindingsText(disc.Check());
  EXPECT_NE(text.find("\\x1B[2Jx"), text.npos);
  EXPECT_EQ(text.find('\x1B'), text.npos);
  EXPECT_EQ(JsonText("\x1B\"\\\xFFł"), "\"\\u001B\\\"\\\\\xEF\xBF\xBDł\"");
}

}  // namespace
}  // namespace orvanta::test
