#include <gtest/gtest.h>

#include <algorithm>

#include "startup/modFormShape.h"
#include "support/TestShell.h"

namespace orvanta::test {
namespace {

using Names = std::vector<std::string>;

/// Names of the visible windows, from the bottom of the screen to its top.
Names Stack(TestShell& user) {
  Shell& s = user.shell;
  const std::pair<const Form*, const char*> forms[] = {
      {s.frmReklama.Loaded(), "start"},       {s.MainForm.Loaded(), "main"},
      {s.frmDociagLewo.Loaded(), "left"},     {s.frmDociagGora.Loaded(), "upper"},
      {s.frmDociagPrawo1.Loaded(), "right1"}, {s.frmDociagPrawo2.Loaded(), "right2"},
      {s.frmDociagPrawo3.Loaded(), "right3"}};
  Names names;
  for (const HeadlessWindow* window : user.host.windows) {
    for (const auto& [form, name] : forms) {
      if (form == &window->form && window->visible && !window->minimised) names.emplace_back(name);
    }
  }
  return names;
}

const Names kGroup{"left", "upper", "right1", "right2", "right3", "main"};
const Names kGroupRestored{"main", "left", "upper", "right1", "right2", "right3"};

TEST(MainWindow, BuildsItselfInTheOrderThatTheUserSees) {
  TestDisc disc;
  disc.File("Data/title.ttf", "x");
  disc.File("Data/menu.ttf", "x");
  TestShell user(disc);
  user.Start();
  Names expected{"startpic.gif", "under.gif", "main.gif", "tlo.gif"};
  for (const std::string button :
       {"ext", "snd1", "snd2", "hlp", "start", "pauza", "stop", "info", "min", "pokaz"}) {
    for (const char* look : {"0.gif", "1.gif", "2.gif"}) expected.push_back(button + look);
  }
  for (const char* name : {"tlo.gif", "kreska.gif", "producer.gif", "help.gif", "about.gif", "bar.gif",
                           "knob.gif", "left.gif", "upper.gif", "right3.gif", "right2.gif", "right1.gif"}) {
    expected.emplace_back(name);
  }
  EXPECT_EQ(user.host.pictures, expected);
  EXPECT_EQ(user.host.fonts, (Names{"+title.ttf", "+menu.ttf"}));
  // The start voice of 1.2 s is over at the third tick; a font costs half a second, the menu one more.
  const auto& sleeps = user.host.sleeps;
  ASSERT_EQ(sleeps.size(), 3U);
  const std::pair<Milliseconds, Milliseconds> pauses[] = {{1500, 500}, {2000, 500}, {2500, 1000}};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(sleeps[i].at, pauses[i].first);
    EXPECT_EQ(sleeps[i].duration, pauses[i].second);
  }
  const HeadlessWindow& window = user.host.WindowOf(user.Main());
  EXPECT_EQ(window.caption, "Płyta próbna");
  EXPECT_EQ(window.place, (Rect{178, 136, 667, 496}));
  EXPECT_EQ(window.pointer, Pointer::Default);
  EXPECT_EQ(Stack(user), kGroup);
  EXPECT_EQ(user.host.active, &user.Main());
  const Rect zone = user.Main().imgUp2.Bounds();
  EXPECT_EQ(zone, (Rect{430, 5, 20, 20}));
  EXPECT_EQ(user.Main().Line2(1).BorderWidth(), 2);
  EXPECT_EQ(user.Main().Line1(3).BorderColor(), 65280);
  EXPECT_EQ(user.Main().MenuPath.size(), 5U);
}

TEST(MainWindow, PutsItsStripsBetweenTheTabsAndTheEdgesOfTheScreen) {
  TestDisc disc;
  TestShell user(disc);
  user.host.screen = {800, 600};
  user.Start();
  Shell& s = user.shell;
  const std::tuple<const frmDociag*, Rect, const char*> strips[] = {
      {&*s.frmDociagLewo, {0, 52 + 137, 66, 80}, "left.gif"},
      {&*s.frmDociagGora, {66 + 208, 0, 204, 52}, "upper.gif"},
      {&*s.frmDociagPrawo3, {733, 52 + 314, 67, 10}, "right1.gif"},
      {&*s.frmDociagPrawo2, {733, 52 + 369, 67, 10}, "right2.gif"},
      {&*s.frmDociagPrawo1, {733, 52 + 424, 67, 10}, "right3.gif"}};
  for (const auto& [strip, place, art] : strips) {
    SCOPED_TRACE(art);
    const HeadlessWindow& window = user.host.WindowOf(*strip);
    EXPECT_EQ(window.place, place);
    EXPECT_EQ(window.kind, WindowKind::Plain);
    const auto look = window.Look().strokes.back();
    EXPECT_EQ(look.text, art);
    EXPECT_EQ(look.whole, (Rect{0, 0, place.width, place.height})) << "the picture is stretched";
  }
}

TEST(MainWindow, ComesUpWithItsStripsWhenOneIsClicked) {
  TestDisc disc;
  TestShell user(disc);
  user.Start();
  user.host.ActivateOther();
  user.Run(60);
  EXPECT_FALSE(user.shell.modActiveWindow.AppActive);
  std::reverse(user.host.windows.begin(), user.host.windows.end());
  user.Click(user.shell.frmDociagPrawo2->Image1);
  EXPECT_EQ(Stack(user), kGroup);
  EXPECT_EQ(user.host.active, &user.Main());
  user.Run(2000);
  EXPECT_TRUE(user.shell.modActiveWindow.AppActive);

  user.host.Click({178, 136});
  EXPECT_EQ(user.host.active, nullptr) << "the corner of the window belongs to what lies behind it";
}

TEST(MainWindow, HasTheMeasuredOutline) {
  const Region outline = BuildFormRegion();
  EXPECT_EQ(outline.PixelCount(), 267024);
  EXPECT_TRUE(outline.Contains({208, 0}));
  EXPECT_TRUE(outline.Contains({412, 5}));
  EXPECT_FALSE(outline.Contains({413, 5}));
  EXPECT_TRUE(outline.Contains({0, 136}));
  EXPECT_FALSE(outline.Contains({0, 135}));
  EXPECT_TRUE(outline.Contains({665, 320}));
  EXPECT_FALSE(outline.Contains({666, 320}));
  EXPECT_TRUE(outline.Contains({300, 493}));
  EXPECT_FALSE(outline.Contains({300, 494}));
}

TEST(MainWindow, SitsInTheLowerLeftCornerOfASmallScreenAlone) {
  struct Case {
    Size screen;
    bool small;
    Point place;
  };
  TestDisc disc;
  for (const Case& c : {Case{{640, 480}, true, {0, -17}}, Case{{799, 600}, true, {0, 102}},
                        Case{{800, 600}, false, {66, 52}}}) {
    SCOPED_TRACE(c.screen.width);
    TestShell user(disc);
    user.host.screen = c.screen;
    user.Start();
    EXPECT_EQ(user.shell.modMain.SmallScreen, c.small);
    HeadlessWindow& window = user.host.WindowOf(user.Main());
    EXPECT_EQ((Point{window.place.left, window.place.top}), c.place);
    EXPECT_EQ(user.shell.frmDociagLewo.Loaded() == nullptr, c.small);
    EXPECT_EQ(user.Main().Top == c.screen.height * 15 - 7440 - 20, c.small) << "twenty twips, not pixels";

    user.Main().Left = 1500;
    user.host.ActivateOther();
    user.host.Activate(user.Main());
    user.Run(100);
    EXPECT_EQ(window.place.left, c.small ? 0 : 100) << "pinned at each activation";
    user.host.MoveMouse(user.MiddleOf(user.Main().picTlo));
    user.Run(100);
    EXPECT_EQ(user.Main().MouseX, 472 / 2) << "the cursor is measured from where the window stands";
    EXPECT_EQ(user.Main().MouseY, 309 / 2);
  }
}

TEST(MainWindow, TakesItsStripsAlongWhenItIsMinimised) {
  TestDisc disc;
  TestShell user(disc);
  user.Start();
  const Rect before = user.host.WindowOf(*user.shell.frmDociagGora).place;
  user.Click(user.Main().ButtonM(8));
  user.Run(1000);
  EXPECT_TRUE(user.host.WindowOf(user.Main()).minimised);
  EXPECT_EQ(Stack(user), Names());
  EXPECT_FALSE(user.shell.modActiveWindow.AppActive);
  user.host.Restore(user.Main());
  user.Run(100);
  EXPECT_EQ(Stack(user), kGroupRestored);
  EXPECT_EQ(user.host.WindowOf(*user.shell.frmDociagGora).place, before);
  EXPECT_EQ(user.host.active, &user.Main());

  TestShell small(disc);
  small.host.screen = {640, 480};
  small.Start();
  small.host.Minimise(small.Main());
  small.Run(100);
  small.host.Restore(small.Main());
  small.Run(100);
  EXPECT_EQ(Stack(small), Names{"main"});
}

TEST(MainWindow, KnowsWhetherTheUserWorksWithTheProgram) {
  TestDisc disc;
  TestShell user(disc);
  user.Start();
  Shell& s = user.shell;
  const Form* const strip = &*s.frmDociagPrawo3;
  const Form* const viewer = &*s.frmShowPic;
  struct Case {
    const Form* active;
    bool small, minimised, viewerOpen, expected;
  };
  const Case cases[] = {
      {&user.Main(), false, false, false, true}, {&user.Main(), false, true, false, false},
      {strip, false, false, false, true},        {strip, true, false, false, false},
      {strip, false, true, false, false},        {nullptr, false, false, true, false},
      {viewer, false, false, true, true},        {viewer, true, true, true, true},
      {viewer, false, false, false, false},      {&*s.frmKino, false, false, true, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
    user.host.active = const_cast<Form*>(c.active);
    s.modMain.SmallScreen = c.small;
    s.modMain.ShowPicOpen = c.viewerOpen;
    user.Main().WindowState.SetQuietly(c.minimised ? Form::kMinimised : Form::kNormal);
    EXPECT_EQ(s.modActiveWindow.CheckActive(), c.expected);
    EXPECT_EQ(s.modActiveWindow.AppActive, c.expected);
  }
}

TEST(MainWindow, TakesLeaveInOrder) {
  TestDisc disc;
  disc.File("Data/title.ttf", "x");
  disc.File("Data/menu.ttf", "x");
  TestShell user(disc);
  user.Start();
  user.host.fonts.clear();
  const Milliseconds begin = user.host.Now();
  const std::size_t calls = user.host.playerCalls.size();
  bool looked = false;
  user.host.After(1500, [&] {
    looked = true;
    EXPECT_EQ(Stack(user), kGroup) << "all stands while the exit voice has its two seconds";
    EXPECT_TRUE(user.host.fonts.empty());
  });
  user.host.Click(user.MiddleOf(user.Main().ButtonM(0)));
  user.Run(5000);
  EXPECT_TRUE(looked && user.ended);
  EXPECT_EQ(user.host.playerCalls.at(calls).call, "stop") << "first the music stops";
  EXPECT_EQ(user.host.playerCalls.at(calls).time, begin + 200) << "after the pressed look has stood";
  EXPECT_EQ(user.host.playerCalls.at(calls + 1).file, "exit1.wav");
  EXPECT_EQ(user.host.Now(), begin + 200 + 2001);
  EXPECT_EQ(user.host.fonts, (Names{"-title.ttf", "-menu.ttf"}));
  EXPECT_EQ(user.shell.frmDociagLewo.Loaded(), nullptr);

  TestShell silent(disc);
  silent.host.soundCard = false;
  silent.Start();
  const Milliseconds leave = silent.host.Now();
  silent.Click(silent.Main().ButtonM(0));
  EXPECT_TRUE(silent.ended);
  EXPECT_EQ(silent.host.Now(), leave + 200);
  EXPECT_TRUE(silent.host.playerCalls.empty());
}

TEST(MainWindow, IsOneOfTwoThatDoNotKnowOfEachOther) {
  TestDisc disc, other;
  disc.Menu("MAINMENU", {"Gry"});
  disc.Menu("Gry", {"Szachy"});
  other.Menu("MAINMENU", {"Muzyka", "Filmy"});
  TestShell first(disc), second(other);
  first.Start();
  second.Start();
  first.Choose(0);
  EXPECT_EQ(first.Main().MenuLevel, 1);
  EXPECT_EQ(second.Main().MenuLevel, 0);
  second.host.ActivateOther();
  second.Run(100);
  EXPECT_TRUE(first.shell.modActiveWindow.AppActive);
  first.Click(first.Main().ButtonM(0));
  first.Run(3000);
  EXPECT_TRUE(first.ended);
  second.Choose(1);
  EXPECT_FALSE(second.ended);
  EXPECT_EQ(second.Main().lblPos1(1).ForeColor(), 0x00FFFF);
}

}  // namespace
}  // namespace orvanta::test
