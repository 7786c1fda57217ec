// The cinema window, from its opening to its closing.

#include <gtest/gtest.h>

#include "platform/MovieScreen.h"
#include "support/EntryDisc.h"

namespace orvanta::test {
namespace {

class Cinema : public ::testing::Test {
 protected:
  static constexpr int kPlay = 0, kStop = 1, kPause = 2, kScale = 3, kFullScale = 4;
  frmKino& Kino() { return *user.shell.frmKino; }
  Image& Button(int i) { return Kino().ButtonM(i); }
  /// Opens the film of the disc and acts out `steps`, each so long after the one before it; then the window
  /// is closed by its stop button.
  struct Step {
    Milliseconds after;
    std::function<void()> act;
  };
  void Watch(std::vector<Step> steps) {
    if (!user.shell.MainForm.Loaded()) {
      EntryDisc::Begin(user, EntryDisc::kFilm);
      user.host.media["film.avi"] = film;
    }
    opened = user.host.Now();
    Milliseconds at = opened + 1001;
    for (auto& step : steps) user.host.At(at += step.after, std::move(step.act));
    user.host.At(at + 1000, [this] { Click(kStop); });
    user.Click(user.Main().ButtonM(9));
    EXPECT_FALSE(user.shell.frmKino.Loaded());
  }
  void Click(int button) { user.host.Click(user.MiddleOf(Button(button))); }
  void Aside() { user.host.MoveMouse({212 + 590, 159 + 440}); }
  /// The latch, the player's state, and how play, stop and pause look.
  std::string State() {
    std::string text =
        std::to_string(Kino().PressedButton) + "/" + std::to_string(Kino().AM0.CurrentState()) + " ";
    for (const int i : {kPlay, kStop, kPause})
      text += Shown(Button(i)).substr(Shown(Button(i)).size() - 5, 1);
    return text;
  }

  EntryDisc disc;
  TestShell user{disc};
  HeadlessHost::Media film{30, {320, 240}, 0};
  Milliseconds opened = 0;
};

TEST_F(Cinema, OpensPlayingAndPutsTheFilmOnItsPlaceWithTheNextTick) {
  film.film = {15, 13};
  Watch({{10,
          [&] {
            EXPECT_EQ(user.host.sleeps.back().duration, 1000);
            EXPECT_EQ(Kino().Place(), (Rect{212, 159, 600, 450}));
            EXPECT_EQ(Kino().Caption(), "Orvanta - Kino");
            EXPECT_EQ(State(), "0/2 200");
            EXPECT_TRUE(Button(kScale).Visible() && !Button(kFullScale).Visible());
            EXPECT_GE(Kino().AM0.Left(), Kino().Width()) << "no film yet";
            EXPECT_EQ(Button(kStop).Bounds(), (Rect{100, 400, 36, 24}));
            EXPECT_EQ(Button(kStop).MouseIcon(), Pointer::Default);
            EXPECT_EQ(Kino().ImageList1("cscale"), Kino().ImageList1(10));
          }},
         {200, [&] {
            // Half of an odd size goes to the even neighbour: 7.5 is 8, 6.5 is 6.
            EXPECT_EQ(Kino().AM0.Bounds(), (Rect{300 - 8, 200 - 6, 15, 13}));
            EXPECT_DOUBLE_EQ(Kino().AM0.Left, 292 * 15);
          }}});
  EXPECT_EQ(CentredEdge(300, 320), 140);
}

TEST_F(Cinema, PausesAndPlaysOn) {
  double held = 0;
  Watch({{2000, [&] { Click(kPause); }},
         {300,
          [&] {
            EXPECT_EQ(State(), "2/1 002");
            held = Kino().AM0.CurrentPosition();
            Click(kPause);
          }},
         {1000,
          [&] {
            EXPECT_EQ(State(), "2/1 002");
            EXPECT_DOUBLE_EQ(Kino().AM0.CurrentPosition(), held);
            Click(kPlay);
          }},
         {300,
          [&] {
            EXPECT_EQ(State(), "0/2 200");
            EXPECT_NEAR(Kino().AM0.CurrentPosition(), held + 0.3, 0.05);
            Click(kPlay);
          }},
         {300, [&] { EXPECT_EQ(State(), "0/2 200"); }}});
  EXPECT_EQ(Calls(user.host, "film.avi"), (std::vector<std::string>{"open", "pause", "run", "stop", "stop"}));
}

TEST_F(Cinema, StandsAtTheEndAndPlaysAgain) {
  film.seconds = 2;
  Watch({{2500,
          [&] {
            EXPECT_EQ(State(), "-1/0 000");
            Click(kPause);
          }},
         {300,
          [&] {
            EXPECT_EQ(Kino().PressedButton, -1) << "nothing to pause";
            Click(kPlay);
          }},
         {300, [&] { EXPECT_EQ(State(), "0/2 200"); }}});
  EXPECT_EQ(Calls(user.host, "film.avi").at(1), "run") << "no new file";
}

TEST_F(Cinema, FillsTheScreenAndComesBackByAClickOnTheFilm) {
  const auto fullScreen = [&]() -> HeadlessWindow* {
    HeadlessWindow* top = user.host.windows.back();
    return top->kind == WindowKind::FullScreen && top->visible ? top : nullptr;
  };
  Watch({{1000, [&] { Click(kScale); }},
         {300,
          [&] {
            ASSERT_TRUE(fullScreen());
            EXPECT_EQ(fullScreen()->place, (Rect{0, 0, 1024, 768}));
            const auto strokes = fullScreen()->Look().strokes;
            EXPECT_EQ(strokes.back().whole, (Rect{0, 0, 1024, 768})) << "4 to 3, as large as it fits";
            EXPECT_TRUE(!Button(kScale).Visible() && Button(kFullScale).Visible());
            EXPECT_EQ(Kino().AM0.CurrentState(), ActiveMovie::kRunning);
            user.host.Click({5, 5});
          }},
         {300,
          [&] {
            EXPECT_FALSE(fullScreen());
            EXPECT_TRUE(Button(kScale).Visible() && !Button(kFullScale).Visible());
            EXPECT_EQ(Kino().AM0.CurrentState(), ActiveMovie::kRunning);
            Click(kPause);
          }},
         {300, [&] { Click(kScale); }},
         {300,
          [&] {
            EXPECT_TRUE(fullScreen());
            EXPECT_EQ(Kino().AM0.CurrentState(), ActiveMovie::kPaused) << "the mode changes, the film stands";
            user.host.Click({500, 500});
          }},
         {300, [&] {
            EXPECT_FALSE(fullScreen());
            EXPECT_EQ(State().substr(0, 3), "2/1");
          }}});
  EXPECT_EQ(Calls(user.host, "film.avi"),
            (std::vector<std::string>{"open", "pause", "run", "pause", "run", "pause", "stop", "stop"}));
}

TEST_F(Cinema, ClosesOnTheWholeScreenToo) {
  EntryDisc::Begin(user, EntryDisc::kFilm);
  user.host.After(2500, [&] { Click(kScale); });
  user.host.After(3500, [&] { user.host.RequestClose(Kino()); });
  user.Click(user.Main().ButtonM(9));
  user.Run(1000);
  EXPECT_FALSE(user.shell.frmKino.Loaded());
  for (const HeadlessWindow* window : user.host.windows) EXPECT_NE(window->kind, WindowKind::FullScreen);
}

TEST_F(Cinema, AFilmThatDoesNotOpenCanOnlyBeClosed) {
  disc.Set("Film", "Parameters", "%:\\brak.avi");
  Watch({{3000, [&] {
            EXPECT_EQ(State(), "0/-1 200");
            EXPECT_GE(Kino().AM0.Left(), Kino().Width()) << "never placed";
            Click(kPause);
          }}});
}

TEST_F(Cinema, ASecondFilmStartsAfresh) {
  Watch({{1000, [&] { Click(kPause); }}});
  film.loadDelay = 700;
  user.host.media["film.avi"] = film;
  Watch({{400,
          [&] {
            EXPECT_EQ(State(), "0/2 200");
            EXPECT_GE(Kino().AM0.Left(), Kino().Width());
          }},
         {600, [&] {
            EXPECT_EQ(Kino().AM0.Bounds(), (Rect{140, 80, 320, 240}));
          }}});
}

TEST_F(Cinema, HoversWithItsOwnPlaceOnTheScreenAndLeavesTheMainWindowAlone) {
  Watch({{1000, [&] { user.host.MoveMouse(user.MiddleOf(Button(kStop))); }},
         {250,
          [&] {
            EXPECT_EQ(Shown(Button(kStop)), "cstop1.gif");
            user.host.MoveMouse(user.MiddleOf(user.Main().ButtonM(0)));
          }},
         {250,
          [&] {
            EXPECT_EQ(Shown(Button(kStop)), "cstop0.gif");
            EXPECT_EQ(Shown(user.Main().ButtonM(0)), "ext0.gif");
            user.host.Click(user.MiddleOf(user.Main().ButtonM(0)));
          }},
         {500, [&] { EXPECT_FALSE(user.ended) << "the main window takes no clicks"; }}});
  EXPECT_EQ(Shown(user.Main().ButtonM(9)), "pokaz0.gif");
  EXPECT_FALSE(user.ended);
}

TEST_F(Cinema, ShowsItsStopButtonPressedBeforeItCloses) {
  EntryDisc::Begin(user, EntryDisc::kFilm);
  std::string look;
  user.host.After(2500, [&] {
    user.host.OnSleep = [&] { look = State(); };
    Click(kStop);
  });
  user.Click(user.Main().ButtonM(9));
  EXPECT_EQ(look, "1/2 220");
  EXPECT_EQ(user.host.sleeps.back().duration, 100);
}

}  // namespace
}  // namespace orvanta::test
