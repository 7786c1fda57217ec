// From the start screen to the leave-taking: the windows, their places and their order.

#include <algorithm>

#include "startup/modFormShape.h"
#include "support/Story.h"

namespace orvanta::test {
namespace {

constexpr const char* kGroup = "Lewo Gora Prawo1 Prawo2 Prawo3 Main ";

struct MainWindow : Story {
  /// The visible windows, from the bottom of the screen to its top.
  std::string Look() override {
    Shell& s = user.shell;
    const std::pair<const Form*, const char*> forms[] = {
        {s.MainForm.Loaded(), "Main "},          {s.frmDociagLewo.Loaded(), "Lewo "},
        {s.frmDociagGora.Loaded(), "Gora "},     {s.frmDociagPrawo1.Loaded(), "Prawo1 "},
        {s.frmDociagPrawo2.Loaded(), "Prawo2 "}, {s.frmDociagPrawo3.Loaded(), "Prawo3 "}};
    std::string names;
    for (const HeadlessWindow* window : user.host.windows) {
      for (const auto& [form, name] : forms)
        if (form == &window->form && window->visible && !window->minimised) names += name;
    }
    return names;
  }
};

TEST_F(MainWindow, FollowsTheStartScreenAtItsSecondTickWhenTheVoiceHasEnded) {
  /// Sound card, the voice's seconds (0 for no file), the picture and when the main window takes over.
  const std::tuple<bool, double, std::string, int> cases[] = {
      {false, 5, "startpic.gif", 1000}, {true, 0, "startpic.gif", 1000}, {true, 2.2, "startpic.gif", 2500},
      {true, 2, "startpic.gif", 2000},  {false, 0, "none.gif", 1000},    {true, 5, "", 500}};
  for (const auto& [soundCard, voice, picture, handOver] : cases) {
    disc.Set("GLOBAL", "StartPic", picture);
    disc.Set("VOICES", "Start", voice > 0 ? "start.wav" : "none.wav");
    disc.Sound("start.wav", voice);
    TestShell shell(disc);
    shell.host.soundCard = soundCard;
    shell.Launch();
    const bool shown = !picture.empty();
    EXPECT_EQ(shell.host.windows.back()->visible, shown);
    EXPECT_EQ(shell.host.playerCalls.empty(), !soundCard || !shown);
    shell.Run(handOver - 1);
    EXPECT_EQ(shell.shell.MainForm.Loaded(), nullptr);
    shell.host.OnSleep = [&] { EXPECT_TRUE(shell.shell.frmReklama.Loaded()) << "until all is built"; };
    shell.Run(1);
    EXPECT_EQ(shell.shell.frmReklama.Loaded(), nullptr);
    EXPECT_TRUE(shell.host.WindowOf(shell.Main()).visible);
    EXPECT_EQ(shell.host.Now(), handOver + 500 + 500 + 1000) << "two fonts and the menu";
  }
}

TEST_F(MainWindow, HasAStartScreenInTheCentreOfAnyScreen) {
  user.host.screen = {640, 480};
  user.Launch();
  const HeadlessWindow& window = *user.host.windows.back();
  EXPECT_EQ(window.place, (Rect{0, 1, 640, 478}));
  EXPECT_EQ(window.pointer, Pointer::Hourglass);
  const auto strokes = window.Look().strokes;
  EXPECT_EQ(strokes[strokes.size() - 2].whole, (Rect{0, 0, 640, 450})) << "the picture is stretched";
  EXPECT_EQ(strokes.back().seen.top, 448);
  EXPECT_EQ(user.shell.modMain.DiscSysDir, "D:\\SYSTEM\\");
  TestShell second(disc);
  second.host.prevInstance = true;
  second.Launch();
  EXPECT_TRUE(second.ended && second.host.windows.empty()) << "one instance is enough";
  second.host.appPath = "D:\\Sub";
  EXPECT_EQ(Shell(second.host).ini.DiscRoot(), "D:\\Sub\\");
}

TEST_F(MainWindow, BuildsItselfInTheOrderThatTheUserSees) {
  disc.File("Data/title.ttf", "x");
  disc.File("Data/menu.ttf", "x");
  Tell({{"start", kGroup}});
  std::string pictures;
  for (const std::string& picture : user.host.pictures)
    if (picture.find_first_of("012") == picture.npos) pictures += picture.substr(0, picture.size() - 3);
  EXPECT_EQ(pictures, "startpic.under.main.tlo.tlo.kreska.producer.help.about.bar.knob.left.upper.right3.");
  EXPECT_EQ(user.host.fonts, (Names{"+title.ttf", "+menu.ttf"}));
  EXPECT_EQ(user.host.WindowOf(Main()).caption, "Płyta próbna");
  EXPECT_EQ(user.host.WindowOf(Main()).place, (Rect{178, 136, 667, 496}));
  EXPECT_EQ(user.host.active, &Main());
  EXPECT_EQ(Main().imgUp2.Bounds(), (Rect{430, 5, 20, 20}));
  const Region outline = BuildFormRegion();
  EXPECT_EQ(outline.PixelCount(), 267024);
  EXPECT_TRUE(outline.Contains({0, 136}) && !outline.Contains({0, 135}) && !outline.Contains({413, 5}));
}

TEST_F(MainWindow, PutsItsStripsBetweenTheTabsAndTheEdgesOfTheScreen) {
  user.host.screen = {800, 600};
  user.Do("start");
  Shell& s = user.shell;
  const std::tuple<const frmDociag*, Rect, const char*> strips[] = {
      {&*s.frmDociagLewo, {0, 52 + 137, 66, 80}, "left.gif"},
      {&*s.frmDociagGora, {66 + 208, 0, 204, 52}, "upper.gif"},
      {&*s.frmDociagPrawo3, {733, 52 + 314, 67, 10}, "right1.gif"},
      {&*s.frmDociagPrawo1, {733, 52 + 424, 67, 10}, "right3.gif"}};
  for (const auto& [strip, place, art] : strips) {
    const HeadlessWindow& window = user.host.WindowOf(*strip);
    const auto look = window.Look().strokes.back();
    EXPECT_EQ(window.place, place) << art;
    EXPECT_EQ(std::tuple(look.text, look.whole), std::tuple(art, Rect{0, 0, place.width, place.height}));
  }
}

TEST_F(MainWindow, ComesUpWithItsStripsAndTakesThemAlong) {
  user.Do("start, leave");
  std::reverse(user.host.windows.begin(), user.host.windows.end());
  user.host.Click(user.MiddleOf(user.shell.frmDociagPrawo2->Image1));
  Tell({{"run 2000", kGroup}});
  EXPECT_EQ(user.host.active, &Main());
  user.host.Click({178, 136});
  EXPECT_EQ(user.host.active, nullptr) << "the corner of the window belongs to what lies behind it";
  Tell({{"minimise, run 1000", ""}, {"restore", "Main Lewo Gora Prawo1 Prawo2 Prawo3 "}});
  EXPECT_EQ(user.host.active, &Main());
}

TEST_F(MainWindow, SitsInTheLowerLeftCornerOfASmallScreenAlone) {
  for (const auto& [screen, at] :
       {std::pair{Size{640, 480}, Point{0, -17}}, {{799, 600}, {0, 102}}, {{800, 600}, {66, 52}}}) {
    const bool isSmall = at.x == 0;
    TestShell shell(disc);
    shell.host.screen = screen;
    shell.Do("start");
    const Rect& place = shell.host.WindowOf(shell.Main()).place;
    EXPECT_EQ((Point{place.left, place.top}), at);
    EXPECT_EQ(shell.Main().Top == screen.height * 15 - 7440 - 20, isSmall) << "twenty twips, not pixels";
    shell.Main().Left = 1500;
    shell.Do("minimise, restore, hover picTlo");
    EXPECT_EQ(place.left, isSmall ? 0 : 100) << "pinned at each activation";
    EXPECT_EQ(shell.shell.frmDociagLewo.Loaded() == nullptr, isSmall);
    EXPECT_EQ(shell.Main().MouseX, 472 / 2) << "measured from where the window stands";
  }
}

TEST_F(MainWindow, KnowsWhetherTheUserWorksWithTheProgram) {
  user.Do("start");
  Shell& s = user.shell;
  Form *main = &Main(), *strip = &*s.frmDociagPrawo3, *viewer = &*s.frmShowPic, *film = &*s.frmKino;
  /// The active window; then whether the screen is small, the main window minimised and the viewer open.
  const std::tuple<Form*, std::string, bool> cases[] = {
      {main, "minimised", 0},          {strip, "", 1},     {strip, "small", 0}, {viewer, "", 0},
      {viewer, "minimised viewer", 1}, {film, "viewer", 0}};
  for (const auto& [active, state, expected] : cases) {
    user.host.active = active;
    s.modMain.SmallScreen = state.starts_with("small");
    s.modMain.ShowPicOpen = state.ends_with("viewer");
    main->WindowState.SetQuietly(state.find("mini") == state.npos ? Form::kNormal : Form::kMinimised);
    EXPECT_EQ(s.modActiveWindow.CheckActive(), expected) << state;
  }
}

TEST_F(MainWindow, TakesLeaveInOrderAndLeavesASecondShellAlone) {
  TestShell second(disc);
  second.Do("start");
  user.Do("start");
  user.host.fonts.clear();
  Expect(1500, kGroup);  // all stands while the exit voice has its two seconds
  After(1500, [&] { EXPECT_TRUE(user.host.fonts.empty()); });
  const std::size_t calls = user.host.playerCalls.size();
  Tell({{"click ButtonM0", "Main "}});
  EXPECT_TRUE(user.ended);
  EXPECT_EQ(user.host.playerCalls.at(calls).call, "stop") << "first the music stops";
  EXPECT_EQ(user.host.playerCalls.at(calls + 1).file, "exit1.wav");
  EXPECT_EQ(user.host.fonts, (Names{"-", "-"}));
  second.Do("choose 3");
  EXPECT_TRUE(!second.ended && second.Main().MenuLevel == 1);
}

}  // namespace
}  // namespace orvanta::test
