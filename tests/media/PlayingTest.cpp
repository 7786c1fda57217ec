// The music of an entry with its marker and buttons, and the cinema.

#include "media/MarkerPlace.h"
#include "support/Story.h"

namespace orvanta::test {
namespace {

struct EntryMusic : Story {
  std::string Look() override {
    const std::string looks = user.Looks({BarButton::Start, BarButton::Pause, BarButton::Stop});
    return NameOf(Main().PressedButton) + " latched, " + StateOf(Main().AM3) + (looks.empty() ? "" : ", ") +
           looks;
  }
  double Marker() { return Main().S2.Left; }
  double At() { return Main().AM3.CurrentPosition(); }
  void LoadsFor(Milliseconds delay) { user.host.media["song.wav"] = {20, {}, delay}; }
};

TEST_F(EntryMusic, GoesThroughItsStates) {
  disc.Sound("x.wav", 1);
  Tell({{"start, choose 1, aside", "Stop latched, no file, Stop pressed"},
        {"press Pause", "Stop latched, no file, Stop pressed"},
        {"press Stop", "Stop latched, no file, Stop pressed"},
        {"press Start, run 5000, press Start", "Start latched, playing, Start pressed"},
        {"press Pause", "Pause latched, paused, Pause pressed"}});
  const double held = At(), marker = Marker();
  Tell({{"run 3000, press Start", "Start latched, playing, Start pressed"}});
  EXPECT_NEAR(At(), held + 0.125, 0.125) << "paused, it does not move";
  EXPECT_LE(Marker(), marker + 3);
  Tell({{"press Stop", "Stop latched, stopped, Stop pressed"}});
  EXPECT_EQ(Marker(), 120);
  EXPECT_EQ(user.Calls("song.wav"), "open, position 0.000000, run, pause, run, stop");
  Tell({{"press Start", "Start latched, playing, Start pressed"}});
  EXPECT_NEAR(At(), 0.2, 0.1) << "loaded again";
  Tell({{"press Pause, press Stop", "Stop latched, stopped, Stop pressed"},
        {"press Start, click imgUp", "none latched, stopped, Start pressed"}});
  Tell({{"choose 3, choose 0, aside", "Stop latched, stopped, Stop pressed"},
        {"press Start", "Start latched, playing, Start pressed"},
        {"press Stop", "Stop latched, stopped, Stop pressed"}});
  EXPECT_EQ(user.Calls("second.wav"), "open, position 0.000000, run, stop")
      << "the next entry loads its own file";
  disc.Set("VOICES", "Tool0", "x.wav");
  Tell({{"press About", "none latched, stopped, Stop pressed"}});
  EXPECT_EQ(user.Calls("x.wav"), "") << "a cue plays nothing and resets the latch";
}

TEST_F(EntryMusic, MovesItsMarkerFromEndToEndAndBack) {
  Tell({{"start, choose 1, press SoundOn, press Start, run 9800", "Start latched, playing, Start pressed"}});
  EXPECT_EQ(Main().AM2.CurrentState(), ActiveMovie::kPaused)
      << "the switch is for the background music alone";
  EXPECT_NEAR(Marker(), 120 + 200 * 0.5, 2);
  user.Do("leave, run 5000");
  EXPECT_NEAR(Marker(), 120 + 200 * 0.75, 12) << "it goes on while another program is active";
  Tell({{"run 5200", "Stop latched, stopped, Stop pressed"}});
  EXPECT_EQ(Marker(), 120);
  EXPECT_EQ(MarkerPlace(320, -200, 5, 20), 270);
  EXPECT_EQ(MarkerPlace(0, 5, 1, 2), 2) << "ties go to even";
  EXPECT_EQ(MarkerPlace(0, 7, 1, 2), 4);
  EXPECT_EQ(MarkerPlace(10, 5, 1, 0), std::nullopt);
}

TEST_F(EntryMusic, WaitsForASlowFileWhileTheUserGoesOn) {
  LoadsFor(1500);
  user.Do("start, choose 1, hover Start, after 600 aside");
  Expect(500, "Stop latched, playing, Start pressed, Stop pressed");
  Expect(900, "Stop latched, playing, Stop pressed");
  EXPECT_NEAR(Takes("click Start"), 1500, 60);
  // Start is latched but shows the picture for a cursor that has left; a second click makes it look pressed
  // again.
  Tell({{"run 0", "Start latched, playing"},
        {"press Stop, after 700 click Start, click Start", "Start latched, playing"}});
  EXPECT_TRUE(user.Calls("song.wav").ends_with("stop, open, position 0.000000, run, position 0.000000, run"));
  Tell({{"press Stop, after 700 click Pause, click Start, aside", "Start latched, playing, Start pressed"},
        {"press Stop, after 700 click imgUp, click Start, aside",
         "Start latched, playing, Stop pressed"},  // it still plays after the user has left
        {"choose 0", "none latched, stopped, Stop pressed"}});
}

TEST_F(EntryMusic, GivesUpOnAFileThatDoesNotOpenAfterTwoSeconds) {
  disc.Set("Piosenka", "Parameters", "%:\\brak.wav");
  user.Do("start, choose 1");
  EXPECT_NEAR(Takes("click Start"), 2000, 60);
  Tell({{"aside, run 1000", "Start latched, no file, Start over"},
        {"click imgUp", "none latched, no file, Start over"}});
  Tell({{"choose 3, choose 0, press Start", "Start latched, playing, Start pressed"},
        {"click imgUp, choose 1, aside", "Stop latched, stopped, Stop pressed"}});
  Tell({{"press Start", "Stop latched, stopped, Stop pressed"}});  // after an earlier file this looks like
                                                                   // the end of the music
  EXPECT_TRUE(user.host.messages.empty());
}

struct Cinema : Story {
  frmKino& Kino() { return *user.shell.frmKino; }
  const HeadlessWindow* WholeScreen() {
    const StackedWindow& top = *user.host.windows.back();
    return top.kind == WindowKind::FullScreen && top.visible ? &user.host.WindowOf(top.form) : nullptr;
  }
  std::string Look() override {
    EXPECT_EQ(Kino().ButtonM(KinoButton::Window).Visible(), WholeScreen() != nullptr);
    EXPECT_NE(Kino().ButtonM(KinoButton::FullScreen).Visible(), WholeScreen() != nullptr);
    std::string text = NameOf(Kino().PressedButton) + " latched, " + StateOf(Kino().AM0);
    for (const KinoButton button : {KinoButton::Play, KinoButton::Stop, KinoButton::Pause}) {
      const std::string look = NamedLook(button, Kino().ButtonM(button));
      text += (look.empty() ? "" : ", ") + look;
    }
    if (WholeScreen()) return text + ", whole screen";
    return text + (Kino().AM0.Left() >= Kino().Width() ? ", aside" : "");
  }
  /// The pause before a step in milliseconds, what is clicked, and what is seen a moment later.
  using Step = std::tuple<int, std::string, std::string>;
  /// Opens the film of the entry, takes the steps and closes the window with its stop button.
  void Watch(std::initializer_list<Step> steps) {
    int at = 1001;
    for (const auto& [after, what, seen] : steps) {
      at += after;
      user.Do("after " + std::to_string(at) + " click " + what);
      Expect(at + 250, seen);
    }
    user.Do("after " + std::to_string(at + 1000) + " click kinoStop, click Film");
    EXPECT_EQ(user.host.windows.size(), 6U);
  }
};

TEST_F(Cinema, OpensPlayingAndPlacesTheFilmAtTheNextTick) {
  user.host.media["film.avi"].film = {15, 13};
  user.Do("start, choose 2");
  Expect(1011, "Play latched, playing, Play pressed, aside");
  After(1250, [&] {
    // Half of an odd size is rounded to even: 7.5 to 8, and 6.5 to 6.
    EXPECT_EQ(Kino().AM0.Bounds(), (Rect{300 - 8, 200 - 6, 15, 13}));
    const auto strokes = [this](const Rect& area) {
      RecordingCanvas canvas;
      Kino().Paint(canvas, area);
      return canvas.strokes.size();
    };
    const Rect film = Kino().AM0.Bounds();
    EXPECT_EQ(strokes(film), 1U) << "each picture of the film costs what lies under it";
    EXPECT_GT(strokes({film.left - 1, film.top, film.width, film.height}), 1U);
    user.host.OnSleep = [&] {
      EXPECT_EQ(Look(), "Stop latched, playing, Play pressed, Stop pressed")
          << "the button is seen pressed before the window closes";
    };
  });
  Watch({});
  EXPECT_EQ(user.host.sleeps.back().duration, 100);
}

TEST_F(Cinema, PausesResumesFillsTheScreenAndStopsAtTheEnd) {
  user.Do("start, choose 2");
  for (const int delay : {4700, 6000}) After(1001 + delay, [&] { user.host.Click({5, 5}); });
  Watch({{2000, "kinoPause", "Pause latched, paused, Pause pressed"},
         {300, "kinoPause", "Pause latched, paused, Pause pressed"},
         {1000, "kinoPlay", "Play latched, playing, Play pressed"},
         {300, "kinoPlay", "Play latched, playing, Play pressed"},
         {700, "kinoFullScreen", "Play latched, playing, Play pressed, whole screen"},
         {900, "kinoPause", "Pause latched, paused, Pause pressed"},
         {300, "kinoFullScreen", "Pause latched, paused, Pause pressed, whole screen"}});
  EXPECT_EQ(user.Calls("film.avi"), "open, pause, run, pause, run, pause, run, pause, stop, stop");
  user.host.media["film.avi"].seconds = 2;
  const std::size_t before = user.host.playerCalls.size();
  Watch({{2500, "kinoPause", "none latched, stopped, Pause over"},
         {300, "kinoPlay", "Play latched, playing, Play pressed"}});
  EXPECT_EQ(user.Calls("film.avi", before), "open, run, stop, stop")
      << "it is played again without being opened again";
}

// Faults: the art keeps an old picture of the film, and each visit another hidden window.
TEST_F(Cinema, ComesBackFromItsOneWholeScreenToTheFilmAsItIsNow) {
  user.Do("start, choose 2");
  for (const int delay : {2000, 3000}) {
    After(delay, [this] { Kino().ButtonM_Click(KinoButton::FullScreen); });
    After(delay + 500, [this] {
      ASSERT_TRUE(WholeScreen());
      Kino().ButtonM_Click(KinoButton::Window);
      const Rect dirty = user.host.WindowOf(Kino()).dirty;
      EXPECT_EQ(Union(dirty, Kino().AM0.Bounds()), dirty);
      EXPECT_EQ(user.host.windows.size(), 8U);
    });
  }
  Watch({{4000, "kinoPause", "Pause latched, paused, Pause pressed"}});
}

TEST_F(Cinema, ALargeFilmTakesTheClicksAboveTheButtonsAndFillsTheScreenInOneDimension) {
  user.host.screen = {1920, 1080};
  user.host.media["film.avi"].film = {854, 480};
  user.Do("start, choose 2, after 2000 click kinoPause, after 3000 close");
  Expect(
      2250,
      "Play latched, playing, Play pressed, Pause over");  // looks depend only on the position of the cursor
  After(2500, [&] {
    Kino().ButtonM_Click(KinoButton::FullScreen);
    EXPECT_EQ(WholeScreen()->Painted().strokes.back().whole, (Rect{0, 0, 1920, 1079}));
  });
  user.Do("click Film");
}

TEST_F(Cinema, WaitsForASlowFilmAndLeavesTheMainWindowAlone) {
  user.host.media["film.avi"].loadDelay = 700;
  user.Do("start, choose 2, after 2000 hover kinoStop, after 2500 click Exit");
  Expect(1400, "Play latched, playing, Play pressed, aside");
  After(1900, [&] { Kino().Left = Kino().Left + 1500; });  // the buttons move with the window
  Expect(2450, "Play latched, playing, Play pressed, Stop over");
  Expect(2750, "Play latched, playing, Play pressed");
  After(2750, [&] { EXPECT_EQ(user.Looks({BarButton::Exit, BarButton::Film}), ""); });
  user.Do("after 3000 click kinoFullScreen, after 3500 close, click Film, run 1000");
  EXPECT_EQ(user.host.windows.size(), 6U) << "closed on the whole screen too";
  disc.Set("Film", "Parameters", "%:\\brak.avi");
  Watch({{3000, "kinoPlay",
          "Play latched, no file, Play pressed, aside"}});  // a film that cannot be opened can only be closed
  EXPECT_FALSE(user.ended) << "the main window takes no clicks";
}

}  // namespace
}  // namespace orvanta::test
