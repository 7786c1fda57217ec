// The music of an entry with its marker and its buttons, and the cinema.

#include "media/MarkerPlace.h"
#include "support/Story.h"

namespace orvanta::test {
namespace {

struct EntryMusic : Story {
  /// The latch, the player's state and how Start, Pauza and Stop look.
  std::string Look() override {
    return std::to_string(Main().PressedButton) + "/" + std::to_string(Main().AM3.CurrentState()) + " " +
           user.Looks({4, 5, 6});
  }
  double Marker() { return Main().S2.Left; }
  double At() { return Main().AM3.CurrentPosition(); }
  void LoadsFor(Milliseconds delay) { user.host.media["song.wav"] = {20, {}, delay}; }
};

TEST_F(EntryMusic, GoesThroughItsStates) {
  disc.Sound("x.wav", 1);
  Tell({{"start, choose 1, aside", "6/-1 002"},
        {"press 5", "6/-1 002"},
        {"press 6", "6/-1 002"},
        {"press 4, run 5000, press 4", "4/2 200"},
        {"press 5", "5/1 020"}});
  const double held = At(), marker = Marker();
  Tell({{"run 3000, press 4", "4/2 200"}});
  EXPECT_TRUE(At() > held && At() < held + 0.25 && Marker() <= marker + 3) << "it stood still";
  Tell({{"press 6", "6/0 002"}});
  EXPECT_EQ(Marker(), 120);
  EXPECT_EQ(user.Calls("song.wav"), "open, position 0.000000, run, pause, run, stop");
  Tell({{"press 4", "4/2 200"}});
  EXPECT_NEAR(At(), 0.2, 0.1) << "loaded anew";
  Tell({{"press 5, press 6", "6/0 002"}, {"press 4, click imgUp", "-1/0 200"}});
  Tell({{"choose 3, choose 0, aside", "6/0 002"}, {"press 4", "4/2 200"}, {"press 6", "6/0 002"}});
  EXPECT_EQ(user.Calls("second.wav"), "open, position 0.000000, run, stop") << "the next entry loads its own";
  disc.Set("VOICES", "Tool0", "x.wav");
  Tell({{"press 7", "-1/0 002"}});
  EXPECT_EQ(user.Calls("x.wav"), "") << "a cue plays nothing and resets the latch";
}

TEST_F(EntryMusic, MovesItsMarkerFromEndToEndAndBack) {
  Tell({{"start, choose 1, press 1, press 4, run 9800", "4/2 200"}});
  EXPECT_EQ(Main().AM2.CurrentState(), ActiveMovie::kPaused) << "the switch is for the loop alone";
  EXPECT_NEAR(Marker(), 120 + 200 * 0.5, 2);
  user.Do("leave, run 5000");
  EXPECT_NEAR(Marker(), 120 + 200 * 0.75, 12) << "it goes on behind another program's window";
  Tell({{"run 5200", "6/0 002"}});
  EXPECT_EQ(Marker(), 120);
  EXPECT_EQ(MarkerPlace(320, -200, 5, 20), 270);
  EXPECT_EQ(MarkerPlace(0, 5, 1, 2), 2) << "ties go to even";
  EXPECT_EQ(MarkerPlace(0, 7, 1, 2), 4);
  EXPECT_EQ(MarkerPlace(10, 5, 1, 0), std::nullopt);
}

TEST_F(EntryMusic, WaitsForASlowFileWhileTheUserGoesOn) {
  LoadsFor(1500);
  user.Do("start, choose 1, hover ButtonM4, after 600 aside");
  Expect(500, "6/2 202");
  Expect(900, "6/2 002");
  EXPECT_NEAR(Takes("click ButtonM4"), 1500, 60);
  // Latched with the look that the hover left; twice started it takes that look back itself.
  Tell({{"run 0", "4/2 000"}, {"press 6, after 700 click ButtonM4, click ButtonM4", "4/2 000"}});
  EXPECT_TRUE(user.Calls("song.wav").ends_with("stop, open, position 0.000000, run, position 0.000000, run"));
  Tell({{"press 6, after 700 click ButtonM5, click ButtonM4, aside", "4/2 200"},
        {"press 6, after 700 click imgUp, click ButtonM4, aside", "4/2 002"},  // left, it still plays
        {"choose 0", "-1/0 002"}});
}

TEST_F(EntryMusic, GivesUpOnAFileThatDoesNotOpenAfterTwoSeconds) {
  disc.Set("Piosenka", "Parameters", "%:\\brak.wav");
  user.Do("start, choose 1");
  EXPECT_NEAR(Takes("click ButtonM4"), 2000, 60);
  Tell({{"aside, run 1000", "4/-1 100"}, {"click imgUp", "-1/-1 100"}});
  Tell({{"choose 3, choose 0, press 4", "4/2 200"}, {"click imgUp, choose 1, aside", "6/0 002"}});
  Tell({{"press 4", "6/0 002"}});  // after an earlier file it looks like the end of the music
  EXPECT_TRUE(user.host.messages.empty());
}

struct Cinema : Story {
  frmKino& Kino() { return *user.shell.frmKino; }
  HeadlessWindow* WholeScreen() {
    HeadlessWindow* top = user.host.windows.back();
    return top->kind == WindowKind::FullScreen && top->visible ? top : nullptr;
  }
  /// The latch, the player's state, how play, stop and pause look, and where the film is.
  std::string Look() override {
    EXPECT_EQ(Kino().ButtonM(4).Visible(), WholeScreen() != nullptr);
    EXPECT_NE(Kino().ButtonM(3).Visible(), WholeScreen() != nullptr);
    return std::to_string(Kino().PressedButton) + "/" + std::to_string(Kino().AM0.CurrentState()) + " " +
           LookOf(Kino().ButtonM(0)) + LookOf(Kino().ButtonM(1)) + LookOf(Kino().ButtonM(2)) +
           (WholeScreen()                         ? " whole"
            : Kino().AM0.Left() >= Kino().Width() ? " aside"
                                                  : "");
  }
  /// Something to click, so long after the step before it, and what is seen a moment later.
  using Step = std::tuple<int, std::string, std::string>;
  /// Opens the film of the entry, takes the steps and closes the window by its stop button.
  void Watch(std::initializer_list<Step> steps) {
    int at = 1001;
    for (const auto& [after, what, seen] : steps) {
      at += after;
      user.Do("after " + std::to_string(at) + " click " + what);
      Expect(at + 250, seen);
    }
    user.Do("after " + std::to_string(at + 1000) + " click kino1, click ButtonM9");
    EXPECT_EQ(user.host.windows.size(), 6U);
  }
};

TEST_F(Cinema, OpensPlayingAndPutsTheFilmOnItsPlaceWithTheNextTick) {
  user.host.media["film.avi"].film = {15, 13};
  user.Do("start, choose 2");
  Expect(1011, "0/2 200 aside");
  After(1250, [&] {
    // Half of an odd size goes to the even neighbour: 7.5 is 8, 6.5 is 6.
    EXPECT_EQ(Kino().AM0.Bounds(), (Rect{300 - 8, 200 - 6, 15, 13}));
    user.host.OnSleep = [&] { EXPECT_EQ(Look(), "1/2 220") << "seen pressed before it closes"; };
  });
  Watch({});
  EXPECT_EQ(user.host.sleeps.back().duration, 100);
}

TEST_F(Cinema, PausesPlaysOnFillsTheScreenAndStandsAtTheEnd) {
  user.Do("start, choose 2");
  for (const int delay : {4700, 6000}) After(1001 + delay, [&] { user.host.Click({5, 5}); });
  Watch({{2000, "kino2", "2/1 002"},
         {300, "kino2", "2/1 002"},
         {1000, "kino0", "0/2 200"},
         {300, "kino0", "0/2 200"},
         {700, "kino3", "0/2 200 whole"},
         {900, "kino2", "2/1 002"},
         {300, "kino3", "2/1 002 whole"}});
  EXPECT_EQ(user.Calls("film.avi"), "open, pause, run, pause, run, pause, run, pause, stop, stop");
  user.host.media["film.avi"].seconds = 2;
  const std::size_t before = user.host.playerCalls.size();
  Watch({{2500, "kino2", "-1/0 001"}, {300, "kino0", "0/2 200"}});
  EXPECT_EQ(user.Calls("film.avi", before), "open, run, stop, stop") << "played again without a new file";
}

TEST_F(Cinema, ALargeFilmTakesTheClicksAboveTheButtonsAndFillsTheScreenInOneDimension) {
  user.host.screen = {1920, 1080};
  user.host.media["film.avi"].film = {854, 480};
  user.Do("start, choose 2, after 2000 click kino2, after 3000 close");
  Expect(2250, "0/2 201");  // looks go by the place of the cursor alone
  After(2500, [&] {
    Kino().ButtonM_Click(3);
    EXPECT_EQ(WholeScreen()->Look().strokes.back().whole, (Rect{0, 0, 1920, 1079}));
  });
  user.Do("click ButtonM9");
}

TEST_F(Cinema, WaitsForASlowFilmAndLeavesTheMainWindowAlone) {
  user.host.media["film.avi"].loadDelay = 700;
  user.Do("start, choose 2, after 2000 hover kino1, after 2500 click ButtonM0");
  Expect(1400, "0/2 200 aside");
  After(1900, [&] { Kino().Left = Kino().Left + 1500; });  // the buttons go with the window
  Expect(2450, "0/2 210");
  Expect(2750, "0/2 200");
  After(2750, [&] { EXPECT_EQ(user.Looks({0, 9}), "00"); });
  user.Do("after 3000 click kino3, after 3500 close, click ButtonM9, run 1000");
  EXPECT_EQ(user.host.windows.size(), 6U) << "closed on the whole screen too";
  disc.Set("Film", "Parameters", "%:\\brak.avi");
  Watch({{3000, "kino0", "0/-1 200 aside"}});  // one that does not open can only be closed
  EXPECT_FALSE(user.ended) << "the main window takes no clicks";
}

}  // namespace
}  // namespace orvanta::test
