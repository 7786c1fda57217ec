// The music of an entry: its states, its marker and the buttons that go with it.

#include <gtest/gtest.h>

#include "media/MarkerPlace.h"
#include "support/EntryDisc.h"

namespace orvanta::test {
namespace {

using Names = std::vector<std::string>;

class EntryMusic : public ::testing::Test {
 protected:
  static constexpr int kStart = 4, kPauza = 5, kStop = 6;
  MainForm& Main() { return user.Main(); }
  ActiveMovie& Player() { return user.Main().AM3; }
  void Begin() { EntryDisc::Begin(user, EntryDisc::kMusic); }
  void Press(int button) {
    user.Click(Main().ButtonM(button));
    user.host.MoveMouse(EntryDisc::kAside);
    user.Run(200);
  }
  void PressAfter(Milliseconds delay, const Control& control) {
    user.host.After(delay, [this, place = user.MiddleOf(control)] { user.host.Click(place); });
  }
  /// The latch, the player's state and how the three buttons look: 0 normal, 1 over, 2 pressed.
  std::string State() {
    std::string text =
        std::to_string(Main().PressedButton) + "/" + std::to_string(Player().CurrentState()) + " ";
    for (const int i : {kStart, kPauza, kStop}) {
      const std::string look = Shown(Main().ButtonM(i));
      text += look.substr(look.size() - 5, 1);
    }
    return text;
  }
  Names SongCalls() { return Calls(user.host, "song.wav"); }

  EntryDisc disc;
  TestShell user{disc};
};

TEST_F(EntryMusic, GoesThroughItsStates) {
  Begin();
  EXPECT_EQ(State(), "6/-1 002");
  EXPECT_DOUBLE_EQ(Main().S2.Left, 120);
  Press(kPauza);
  Press(kStop);
  EXPECT_EQ(State(), "6/-1 002") << "nothing to pause or to stop";

  Press(kStart);
  EXPECT_EQ(State(), "4/2 200");
  EXPECT_EQ(SongCalls(), (Names{"open", "position 0.000000", "run"}));
  user.Run(5000);
  Press(kStart);
  EXPECT_EQ(SongCalls().size(), 3U) << "a second click during play does nothing";

  Press(kPauza);
  EXPECT_EQ(State(), "5/1 020");
  const double held = Player().CurrentPosition(), marker = Main().S2.Left;
  user.Run(3000);
  EXPECT_DOUBLE_EQ(Main().S2.Left, marker);
  Press(kStart);
  EXPECT_EQ(State(), "4/2 200");
  EXPECT_NEAR(Player().CurrentPosition(), held, 0.25);
  EXPECT_EQ(SongCalls().size(), 5U) << "not loaded again";

  Press(kStop);
  EXPECT_EQ(State(), "6/0 002");
  EXPECT_DOUBLE_EQ(Main().S2.Left, 120);
  Press(kStart);
  EXPECT_EQ(SongCalls().at(6), "open");
  EXPECT_NEAR(Player().CurrentPosition(), 0.2, 0.1);
  Press(kPauza);
  Press(kStop);
  EXPECT_EQ(State(), "6/0 002");
}

TEST_F(EntryMusic, MovesItsMarkerFromEndToEndAndBack) {
  Begin();
  EXPECT_DOUBLE_EQ(Main().S2.Top, 455);
  Press(kStart);
  user.Run(9800);
  EXPECT_NEAR(Main().S2.Left, 120 + 200 * 0.5, 2);
  user.host.ActivateOther();
  user.Run(5000);
  EXPECT_NEAR(Main().S2.Left, 120 + 200 * 0.75, 12) << "it goes on behind another program's window";
  user.Run(5200);
  EXPECT_EQ(State(), "6/0 002") << "the end";
  EXPECT_DOUBLE_EQ(Main().S2.Left, 120);
  Press(kStart);
  EXPECT_EQ(SongCalls().at(3), "open");
}

TEST_F(EntryMusic, MarkerRunsBackwardsAndRoundsTiesToEven) {
  EXPECT_EQ(MarkerPlace(320, -200, 5, 20), 270);
  EXPECT_EQ(MarkerPlace(0, 5, 1, 2), 2);
  EXPECT_EQ(MarkerPlace(0, 7, 1, 2), 4);
  EXPECT_EQ(MarkerPlace(10, 5, 1, 0), std::nullopt);
  disc.Set("GLOBAL", "S2_Start", "320");
  disc.Set("GLOBAL", "S2_End", "120");
  Begin();
  Press(kStart);
  user.Run(9800);
  EXPECT_NEAR(Main().S2.Left, 320 - 200 * 0.5, 2);
}

TEST_F(EntryMusic, PlaysWithTheSoundSwitchedOff) {
  Begin();
  Press(1);
  Press(kStart);
  user.Run(2000);
  EXPECT_EQ(State(), "4/2 200");
  EXPECT_EQ(Main().AM2.CurrentState(), ActiveMovie::kPaused);
}

TEST_F(EntryMusic, EndsWhenTheUserLeavesAndTheNextEntryLoadsItsOwn) {
  Begin();
  Press(kStart);
  const std::size_t before = user.host.playerCalls.size();
  user.Click(Main().imgUp);
  EXPECT_EQ(State().substr(0, 4), "-1/0");
  EXPECT_EQ(Calls(user.host, "song.wav", before), Names{"stop"});
  user.Run(100);
  EXPECT_EQ(Main().AM2.CurrentState(), ActiveMovie::kRunning) << "the loop comes back";
  user.Choose(EntryDisc::kMenu);
  user.Choose(0);
  EXPECT_EQ(State(), "6/0 002");
  Press(kStart);
  EXPECT_EQ(State(), "4/2 200");
  EXPECT_EQ(Calls(user.host, "second.wav"), (Names{"open", "position 0.000000", "run"}));
}

TEST_F(EntryMusic, WaitsForASlowFileAndShowsItPressedOnlyUnderTheCursor) {
  user.host.media["song.wav"] = {20, {}, 1500};
  Begin();
  user.host.MoveMouse(user.MiddleOf(Main().ButtonM(kStart)));
  user.Run(100);
  std::string whileOn, whileOff;
  user.host.After(500, [&] { whileOn = Shown(Main().ButtonM(kStart)); });
  user.host.After(600, [&] { user.host.MoveMouse(EntryDisc::kAside); });
  user.host.After(900, [&] { whileOff = Shown(Main().ButtonM(kStart)); });
  const Milliseconds before = user.host.Now();
  user.Click(Main().ButtonM(kStart));
  EXPECT_NEAR(static_cast<double>(user.host.Now() - before), 1500, 60);
  EXPECT_EQ(whileOn, "start2.gif");
  EXPECT_EQ(whileOff, "start0.gif");
  EXPECT_EQ(State(), "4/2 000") << "latched with the look that the hover left";
}

TEST_F(EntryMusic, GivesUpOnAFileThatDoesNotOpenAfterTwoSeconds) {
  disc.Set("Piosenka", "Parameters", "%:\\brak.wav");
  Begin();
  const Milliseconds before = user.host.Now();
  user.Click(Main().ButtonM(kStart));
  EXPECT_NEAR(static_cast<double>(user.host.Now() - before), 2000, 60);
  user.Run(1000);
  EXPECT_EQ(State().substr(0, 4), "4/-1") << "no file before: it stays so until the view is left";
  EXPECT_TRUE(user.host.messages.empty());
  user.Click(Main().imgUp);
  EXPECT_EQ(Main().PressedButton, -1);

  disc.Set("Piosenka", "Parameters", "%:\\Data\\Sound\\song.wav");
  user.Choose(EntryDisc::kMusic);
  Press(kStart);
  Press(kStop);
  disc.Set("Piosenka", "Parameters", "%:\\brak.wav");
  user.Click(Main().ButtonM(kStart));
  user.host.MoveMouse(EntryDisc::kAside);
  user.Run(200);
  EXPECT_EQ(State(), "6/0 002") << "an earlier file: it looks like the end of the music";
}

TEST_F(EntryMusic, StartedTwiceDuringTheLoadPlaysOnce) {
  user.host.media["song.wav"] = {20, {}, 1500};
  Begin();
  PressAfter(700, Main().ButtonM(kStart));
  user.Click(Main().ButtonM(kStart));
  EXPECT_EQ(State(), "4/2 000") << "the outer click takes back the look of the inner one's latch";
  EXPECT_EQ(SongCalls().at(0), "open");
  EXPECT_EQ(SongCalls().at(1), "position 0.000000") << "the inner click finds it running and loads nothing";
}

TEST_F(EntryMusic, LeftDuringTheLoadItStillPlays) {
  user.host.media["song.wav"] = {20, {}, 1500};
  Begin();
  PressAfter(700, Main().imgUp);
  user.Click(Main().ButtonM(kStart));
  EXPECT_EQ(Main().MenuLevel, 0);
  EXPECT_EQ(Main().PressedButton, 4);
  user.Run(500);
  EXPECT_EQ(Player().CurrentState(), ActiveMovie::kRunning);
  user.Choose(EntryDisc::kProgram);
  EXPECT_EQ(Player().CurrentState(), ActiveMovie::kStopped) << "the next cue ends it";
}

TEST_F(EntryMusic, PausedDuringTheLoadItPlays) {
  user.host.media["song.wav"] = {20, {}, 1500};
  Begin();
  PressAfter(700, Main().ButtonM(kPauza));
  user.Click(Main().ButtonM(kStart));
  user.host.MoveMouse(EntryDisc::kAside);
  user.Run(200);
  EXPECT_EQ(State(), "4/2 200");
}

}  // namespace
}  // namespace orvanta::test
