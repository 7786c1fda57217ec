#include <gtest/gtest.h>

#include "support/TestShell.h"

namespace orvanta::test {
namespace {

const HeadlessWindow* WindowCalled(const TestShell& user, const Form* form) {
  for (const HeadlessWindow* window : user.host.windows) {
    if (&window->form == form) return window;
  }
  return nullptr;
}

TEST(StartScreen, HandsOverAtTheSecondTickAndNeverCutsTheVoice) {
  struct Case {
    const char* what;
    bool soundCard;
    double voice;  // seconds, 0 for no file
    const char* picture;
    Milliseconds handOver;
  };
  const Case cases[] = {
      {"no sound card", false, 5, "startpic.gif", 1000},
      {"no voice", true, 0, "startpic.gif", 1000},
      {"voice of less than a second", true, 0.3, "startpic.gif", 1000},
      {"voice that ends between two ticks", true, 2.2, "startpic.gif", 2500},
      {"voice that ends with a tick", true, 2, "startpic.gif", 2000},
      {"picture that is not there", false, 0, "none.gif", 1000},
      {"no picture, so no screen and no voice", true, 5, "", 500},
  };
  TestDisc disc;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    disc.Set("GLOBAL", "StartPic", c.picture);
    disc.Set("VOICES", "Start", c.voice > 0 ? "start.wav" : "none.wav");
    if (c.voice > 0) disc.Sound("start.wav", c.voice);
    TestShell user(disc);
    user.host.soundCard = c.soundCard;
    user.Launch();
    const Form* const screen = user.shell.frmReklama.Loaded();
    const bool shown = *c.picture != '\0';
    EXPECT_EQ(WindowCalled(user, screen)->visible, shown);
    EXPECT_EQ(user.host.playerCalls.empty(), !c.soundCard || !shown);

    user.Run(c.handOver - 1);
    EXPECT_EQ(user.shell.MainForm.Loaded(), nullptr);
    EXPECT_EQ(WindowCalled(user, screen)->visible, shown);
    user.Run(1);
    ASSERT_NE(user.shell.MainForm.Loaded(), nullptr);
    ASSERT_EQ(user.host.sleeps.size(), 3U);
    EXPECT_EQ(user.host.sleeps.front().at, c.handOver);
    EXPECT_EQ(user.host.Now(), c.handOver + 500 + 500 + 1000);
    EXPECT_EQ(user.shell.frmReklama.Loaded(), nullptr);
    EXPECT_TRUE(WindowCalled(user, &user.Main())->visible);
    EXPECT_EQ(user.shell.basCommon.SoundCardOK, c.soundCard);
  }
}

TEST(StartScreen, StandsInTheCentreOfAnyScreenWithAnHourglass) {
  TestDisc disc;
  TestShell user(disc);
  user.host.screen = {640, 480};
  user.Launch();
  const HeadlessWindow& window = user.host.WindowOf(*user.shell.frmReklama);
  EXPECT_EQ(window.place, (Rect{0, 1, 640, 478}));
  EXPECT_EQ(window.pointer, Pointer::Hourglass);
  using Kind = RecordingCanvas::Stroke::Kind;
  const auto strokes = window.Look().strokes;
  ASSERT_GE(strokes.size(), 2U);
  EXPECT_EQ(strokes[strokes.size() - 2].kind, Kind::Picture);
  EXPECT_EQ(strokes[strokes.size() - 2].whole, (Rect{0, 0, 640, 450})) << "the picture is stretched";
  EXPECT_EQ(strokes.back().text, "under.gif");
  EXPECT_EQ(strokes.back().seen.top, 448);
  user.host.Click({320, 240});
  user.Run(900);
  EXPECT_TRUE(window.visible) << "a click does nothing here";
}

TEST(Main, EndsWithoutAWindowIfAnotherInstanceRuns) {
  TestDisc disc;
  TestShell user(disc);
  user.host.prevInstance = true;
  user.Launch();
  EXPECT_TRUE(user.ended);
  EXPECT_TRUE(user.host.windows.empty());
  EXPECT_TRUE(user.host.messages.empty());
}

TEST(Main, TakesItsPathsFromTheFolderOfTheProgram) {
  TestDisc disc;
  TestShell user(disc);
  user.Launch();
  EXPECT_EQ(user.shell.modMain.DiscRoot, "D:\\");
  EXPECT_EQ(user.shell.modMain.DiscSysDir, "D:\\SYSTEM\\");

  HeadlessHost below(disc.Folder());
  below.appPath = "D:\\Sub";
  Shell shell(below);
  shell.modMain.Main();
  EXPECT_EQ(shell.modMain.DiscRoot, "D:\\Sub\\");
}

}  // namespace
}  // namespace orvanta::test
