// Cues and the voice at the exit.

#include <gtest/gtest.h>

#include <set>

#include "support/EntryDisc.h"

namespace orvanta::test {
namespace {

/// Leaves the program and gives the file that took leave.
std::string Farewell(const TestDisc& disc, int runs = 1) {
  std::set<std::string> voices;
  for (int run = 0; run < runs; ++run) {
    TestShell user(disc);
    user.Start();
    user.Click(user.Main().ButtonM(0));
    EXPECT_TRUE(user.ended);
    voices.insert(user.host.playerCalls.back().file);
  }
  EXPECT_EQ(voices.size(), 1U) << "one disc, one choice";
  return *voices.begin();
}

TEST(Voices, OneOfAGaplessRunTakesLeaveAlwaysTheSame) {
  TestDisc disc;
  EXPECT_EQ(Farewell(disc, 2), "exit1.wav");
  disc.Set("VOICES", "Exit2", "exit2.wav");
  disc.Set("VOICES", "Exit4", "exit4.wav");
  for (const char* name : {"exit2.wav", "exit4.wav"}) disc.Sound(name, 1);
  EXPECT_NE(Farewell(disc, 2), "exit4.wav");
  std::set<std::string> chosen;
  for (int n = 3; n <= 8; ++n) {
    disc.Set("VOICES", "Exit" + std::to_string(n), "exit" + std::to_string(n) + ".wav");
    disc.Sound("exit" + std::to_string(n) + ".wav", 1);
    chosen.insert(Farewell(disc, 2));
  }
  EXPECT_GE(chosen.size(), 2U) << "the choice depends on how many there are";
}

TEST(Voices, TheExitTakesTwoSecondsWhateverIsHeard) {
  for (const char* voice : {"exit1.wav", "brak.wav", ""}) {
    TestDisc disc;
    disc.Set("VOICES", "Exit1", voice);
    TestShell user(disc);
    user.Start();
    const Milliseconds before = user.host.Now();
    user.Click(user.Main().ButtonM(0));
    EXPECT_TRUE(user.ended);
    EXPECT_NEAR(static_cast<double>(user.host.Now() - before), 200 + 2000, 60) << voice;
    EXPECT_EQ(user.host.fonts, (std::vector<std::string>{"+", "+", "-", "-"}));
  }
}

TEST(Voices, APathWithADriveIsUsedAsItIs) {
  TestDisc disc;
  disc.Sound("../voice.wav", 1);
  disc.Set("VOICES", "Exit1", "%:\\Data\\voice.wav");
  EXPECT_EQ(Farewell(disc), "voice.wav");
}

TEST(Voices, TheVoiceTakesTheMusicsPlayerAndTheBarStaysSafe) {
  EntryDisc disc;
  TestShell user(disc);
  EntryDisc::Begin(user, EntryDisc::kMusic);
  user.Click(user.Main().ButtonM(4));
  int latch = 0;
  user.host.After(400, [&] { latch = user.Main().PressedButton; });
  // The voice runs on the player that these two drive.
  for (const int button : {5, 6}) {
    user.host.After(500 + button * 100,
                    [&user, button] { user.host.Click(user.MiddleOf(user.Main().ButtonM(button))); });
  }
  user.host.After(1500, [&] { user.host.Click(user.MiddleOf(user.Main().ButtonM(0))); });
  user.Click(user.Main().ButtonM(0));
  EXPECT_TRUE(user.ended);
  EXPECT_EQ(latch, -1);
  const auto song = Calls(user.host, "song.wav");
  EXPECT_EQ(song.back(), "stop");
  EXPECT_EQ(Calls(user.host, "exit1.wav").front(), "open");
}

TEST(Voices, CuesPlayNothingWhetherTheirKeysAreThereOrNot) {
  for (const bool there : {true, false}) {
    EntryDisc disc;
    for (const char* key : {"Tool0", "Button0", "Exec0", "Cinema"}) {
      disc.Sound("x.wav", 1);
      if (!there) disc.Remove("VOICES", key);
    }
    TestShell user(disc);
    user.Start();
    user.Choose(EntryDisc::kMenu);
    user.Click(user.Main().imgBack);
    user.Click(user.Main().ButtonM(7));
    EXPECT_EQ(user.Main().AM3.CurrentState(), ActiveMovie::kNoFile);
    EXPECT_TRUE(Calls(user.host, "x.wav").empty());
  }
}

TEST(Voices, ACueResetsTheLatchOnceThereHasBeenAFile) {
  EntryDisc disc;
  TestShell user(disc);
  EntryDisc::Begin(user, EntryDisc::kMusic);
  user.Main().PlaySoundFile("x", true);
  EXPECT_EQ(user.Main().PressedButton, 6);
  user.Click(user.Main().ButtonM(4));
  user.Click(user.Main().ButtonM(6));
  ASSERT_EQ(user.Main().PressedButton, 6);
  user.Main().PlayRandomSoundFile("Tool", true);
  EXPECT_EQ(user.Main().PressedButton, -1) << "although the player was stopped already";
}

}  // namespace
}  // namespace orvanta::test
