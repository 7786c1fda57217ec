// From the start screen to the farewell: the windows, their positions and their order.

#include <algorithm>

#include "support/Story.h"

namespace orvanta::test {
namespace {

constexpr const char* kGroup = "Lewo Gora Prawo1 Prawo2 Prawo3 Main ";

struct MainWindow : Story {
  /// The visible windows, from bottom to top.
  std::string Look() override {
    Shell& s = user.shell;
    const std::pair<const Form*, const char*> forms[] = {
        {s.MainForm.Loaded(), "Main "},          {s.frmDociagLewo.Loaded(), "Lewo "},
        {s.frmDociagGora.Loaded(), "Gora "},     {s.frmDociagPrawo1.Loaded(), "Prawo1 "},
        {s.frmDociagPrawo2.Loaded(), "Prawo2 "}, {s.frmDociagPrawo3.Loaded(), "Prawo3 "}};
    std::string names;
    for (const StackedWindow* window : user.host.windows) {
      for (const auto& [form, name] : forms)
        if (form == &window->form && window->visible && !window->minimised) names += name;
    }
    return names;
  }
};

TEST_F(MainWindow, FollowsTheStartScreenAtItsSecondTickWhenTheVoiceHasEnded) {
  /// Whether there is a sound card, the length of the voice in seconds (0 for no file), the picture, and when
  /// the main window takes over.
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
    EXPECT_EQ(shell.host.Now(), handOver + 500 + 500 + 1000) << "pauses for two fonts and the menu";
  }
}

// Fault: the transparent pixels of a picture show what was painted there before, such as the marker's trail.
TEST_F(MainWindow, PaintsAGroundUnderTransparentArt) {
  user.Do("start, choose 3");
  const auto strokes = user.host.WindowOf(Main()).Painted().strokes;
  for (const std::string art : {"MainGfx", "BackgroundPic", "LinePic"}) {
    const auto picture =
        std::ranges::find(strokes, disc.Value("GLOBAL", art), &RecordingCanvas::Stroke::text);
    ASSERT_TRUE(picture != strokes.end() && picture != strokes.begin()) << art;
    EXPECT_EQ(std::prev(picture)->kind, RecordingCanvas::Stroke::Kind::Fill) << art;
    EXPECT_EQ(std::prev(picture)->seen, picture->seen) << art;
  }
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
  EXPECT_EQ(user.host.active, &Main());
  EXPECT_EQ(Shown(user.shell.frmDociagPrawo3->Image1), "right1.gif") << "the lowest is the first";
  EXPECT_EQ(Main().imgUp2.Bounds(), (Rect{430, 5, 20, 20}));
}

struct SecondStart : HeadlessHost {
  using HeadlessHost::HeadlessHost;
  bool PrevInstance() const override { return true; }
};

TEST(Start, WithoutADiscIsExplainedUnlessTheProgramRunsAlready) {
  const TemporaryFolder folder;
  HeadlessHost first(folder.Path());
  EXPECT_FALSE(Shell(first).Run());
  ASSERT_EQ(first.messages.size(), 1U);
  EXPECT_NE(first.messages[0].text.find(folder.Path()), std::string::npos) << "the folder that was looked at";
  SecondStart second(folder.Path());
  EXPECT_TRUE(Shell(second).Run());
  EXPECT_TRUE(second.messages.empty());
}

TEST_F(MainWindow, SitsInTheLowerLeftCornerOfASmallScreenAlone) {
  for (const auto& [screen, at] :
       {std::pair{Size{640, 480}, Point{0, -17}}, {{799, 600}, {0, 102}}, {{800, 600}, {66, 52}}}) {
    TestShell shell(disc);
    shell.host.screen = screen;
    shell.Do("start");
    const Rect& place = shell.host.WindowOf(shell.Main()).place;
    EXPECT_EQ((Point{place.left, place.top}), at);
    EXPECT_EQ(shell.shell.frmDociagLewo.Loaded() == nullptr, at.x == 0);
  }
}

TEST_F(MainWindow, TakesLeaveInOrderAndLeavesASecondShellAlone) {
  TestShell second(disc);
  second.Do("start");
  user.Do("start");
  user.host.fonts.clear();
  Expect(1500, kGroup);  // everything stays while the exit voice has its two seconds
  After(1500, [&] { EXPECT_TRUE(user.host.fonts.empty()); });
  const std::size_t calls = user.host.playerCalls.size();
  Tell({{"click Exit", "Main "}});
  EXPECT_TRUE(user.ended);
  EXPECT_EQ(user.host.playerCalls.at(calls).call, "stop") << "first the music stops";
  EXPECT_EQ(user.host.playerCalls.at(calls + 1).file, "exit1.wav");
  EXPECT_EQ(user.host.fonts, (Names{"-", "-"}));
  second.Do("choose 3");
  EXPECT_FALSE(second.ended);
  EXPECT_EQ(second.Main().MenuLevel, 1);
}

}  // namespace
}  // namespace orvanta::test
