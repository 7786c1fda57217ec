// What the ten buttons do.

#include <gtest/gtest.h>

#include "support/EntryDisc.h"

namespace orvanta::test {
namespace {

class Actions : public ::testing::Test {
 protected:
  Image& Button(int i) { return user.Main().ButtonM(i); }
  MainForm& Main() { return user.Main(); }
  /// Clicks a button and gives how it looked, painted, during each pause that followed.
  std::vector<std::string> LooksWhile(int i) {
    std::vector<std::string> looks;
    user.host.OnSleep = [&] {
      const bool onScreen = user.host.WindowOf(Main()).dirty.Empty();
      looks.push_back(onScreen ? Shown(Button(i)) : "not painted");
    };
    user.host.sleeps.clear();
    user.Click(Button(i));
    user.host.OnSleep = nullptr;
    return looks;
  }
  std::string Transport() {
    return std::to_string(Main().PressedButton) + " " + Shown(Button(4)) + " " + Shown(Button(5)) + " " +
           Shown(Button(6));
  }
  void Press(int i) {
    user.Click(Button(i));
    user.host.MoveMouse(EntryDisc::kAside);
    user.Run(200);
  }

  EntryDisc disc;
  TestShell user{disc};
  using Looks = std::vector<std::string>;
};

TEST_F(Actions, ExitShowsItselfPressedBeforeAnySoundStops) {
  user.Start();
  EXPECT_EQ(LooksWhile(0), Looks{"ext2.gif"});
  EXPECT_EQ(user.host.sleeps.front().duration, 200);
  const HeadlessHost::PlayerCall* stop = nullptr;
  for (const auto& call : user.host.playerCalls) {
    if (call.file == "loop.wav" && call.call == "stop") stop = &call;
  }
  ASSERT_TRUE(stop);
  EXPECT_EQ(stop->time, user.host.sleeps.front().at + 200);
}

TEST_F(Actions, TheSoundPairIsASwitch) {
  user.Start();
  EXPECT_EQ(LooksWhile(1), Looks{"snd12.gif"});
  EXPECT_EQ(user.host.sleeps.front().duration, 300);
  EXPECT_FALSE(user.shell.basCommon.SoundWanted);
  EXPECT_FALSE(Button(1).Visible() || Button(1).Enabled());
  EXPECT_TRUE(Button(2).Visible() && Button(2).Enabled());
  EXPECT_EQ(Shown(Button(2)), "snd21.gif");

  user.Run(2000);
  EXPECT_EQ(LooksWhile(2), Looks{"snd22.gif"});
  EXPECT_TRUE(user.shell.basCommon.SoundWanted);
  EXPECT_TRUE(Button(1).Visible() && Button(1).Enabled());
  EXPECT_FALSE(Button(2).Visible() || Button(2).Enabled());
  EXPECT_EQ(Shown(Button(1)), "snd11.gif");
}

TEST_F(Actions, PagesOpenCloseAndTakeTurns) {
  user.Start();
  EXPECT_EQ(LooksWhile(3), Looks{"hlp2.gif"});
  EXPECT_EQ(user.host.sleeps.front().duration, 300);
  EXPECT_EQ(Shown(Button(3)), "hlp1.gif");
  EXPECT_TRUE(Main().imgPomoc.Visible());
  EXPECT_DOUBLE_EQ(Main().imgPomoc.Top, 0);
  EXPECT_FALSE(Main().lblPos1(0).Visible());
  EXPECT_TRUE(Main().imgSuwak.Visible()) << "the page is taller than its frame";

  user.Click(Button(7));
  EXPECT_TRUE(Main().imgSeven.Visible());
  EXPECT_FALSE(Main().imgPomoc.Visible());
  EXPECT_FALSE(Main().imgSuwak.Visible());

  user.Click(Button(7));
  EXPECT_FALSE(Main().imgSeven.Visible());
  EXPECT_TRUE(Main().lblPos1(3).Visible());

  user.Click(Button(3));
  user.host.Click({178 + 90 + 60, 136 + 140 + 200});  // on the page itself
  user.Run(1);
  EXPECT_FALSE(Main().imgPomoc.Visible());
  EXPECT_TRUE(Main().lblPos1(3).Visible());
}

TEST_F(Actions, APageBringsBackTheEntryThatItCovers) {
  EntryDisc::Begin(user, EntryDisc::kProgram);
  Press(7);
  EXPECT_TRUE(Main().picTlo.Visible());
  user.host.started.clear();
  Press(4);
  EXPECT_TRUE(user.host.started.empty()) << "the page covers the entry";
  Press(7);
  EXPECT_FALSE(Main().picTlo.Visible());
  EXPECT_TRUE(Button(4).Visible() && Main().picShot(0).Visible());
}

TEST_F(Actions, APageOverAMusicEntryOpensOnlyWhileTheMusicIsStopped) {
  EntryDisc::Begin(user, EntryDisc::kMusic);
  Press(3);
  EXPECT_TRUE(Main().imgPomoc.Visible());
  EXPECT_EQ(Main().PressedButton, 6) << "the player has never had a file";
  Press(3);
  Press(4);
  ASSERT_EQ(Main().PressedButton, 4);
  for (const int page : {3, 7}) {
    EXPECT_EQ(LooksWhile(page), Looks{}) << "not even pressed";
    EXPECT_TRUE(Shown(Button(page)).find('2') == std::string::npos);
    Press(5);
    EXPECT_EQ(LooksWhile(page), Looks{});
    Press(4);
  }
  Press(6);
  Press(7);
  EXPECT_TRUE(Main().imgSeven.Visible());
  EXPECT_EQ(Transport(), "-1 start0.gif pauza0.gif stop2.gif") << "the latch is gone, its look is not";
  user.host.MoveMouse(user.MiddleOf(Button(6)));
  user.Run(100);
  user.host.MoveMouse(EntryDisc::kAside);
  user.Run(100);
  EXPECT_EQ(Shown(Button(6)), "stop0.gif");
  Press(7);
  EXPECT_EQ(Transport(), "6 start0.gif pauza0.gif stop2.gif");
}

TEST_F(Actions, MinimiseHidesTheWindowAndItsStripsAfterAPause) {
  user.Start();
  EXPECT_EQ(LooksWhile(8), Looks{"min2.gif"});
  EXPECT_EQ(user.host.sleeps.front().duration, 500);
  EXPECT_EQ(Main().WindowState, Form::kMinimised);
  EXPECT_FALSE(user.shell.frmDociagLewo->Visible());
  user.Run(2000);
  EXPECT_FALSE(user.shell.modActiveWindow.AppActive);
  user.host.Restore(Main());
  user.Run(100);
  EXPECT_TRUE(user.shell.frmDociagLewo->Visible());
  EXPECT_TRUE(user.shell.modActiveWindow.AppActive);
}

TEST_F(Actions, AnEntryWithBothKeysIsAProgram) {
  disc.Set("Piosenka", "Execute", "%:\\gra.exe");
  EntryDisc::Begin(user, EntryDisc::kMusic);
  user.host.startResult = 2;
  Press(4);
  ASSERT_EQ(user.host.started.size(), 1U);
  EXPECT_EQ(Calls(user.host, "song.wav"), Looks{});
}

TEST_F(Actions, WithoutASoundCardTheUserIsToldAndNothingPlays) {
  user.host.soundCard = false;
  EntryDisc::Begin(user, EntryDisc::kMusic);
  EXPECT_EQ(LooksWhile(2), Looks{});
  EXPECT_FALSE(Button(1).Visible());
  for (const int button : {5, 6}) {
    Press(button);
    EXPECT_EQ(Transport(), "6 start0.gif pauza0.gif stop2.gif");
  }
  Press(4);
  user.Click(Main().imgUp);
  user.Choose(EntryDisc::kFilm);
  user.Click(Button(9));
  EXPECT_NE(Shown(Button(9)), "pokaz2.gif");
  ASSERT_EQ(user.host.messages.size(), 2U);
  const std::string card = "Brak lub źle skonfigurowana karta dźwiękowa.\r\n";
  EXPECT_EQ(user.host.messages[0].text, card + "Odtworzenie muzyki jest niemożliwe.");
  EXPECT_EQ(user.host.messages[1].text, card + "Odtworzenie filmu jest niemożliwe.");
  for (const auto& message : user.host.messages) {
    EXPECT_EQ(message.style, 16);
    EXPECT_EQ(message.title, "Płyta próbna");
  }
  EXPECT_TRUE(user.host.playerCalls.empty());
  EXPECT_FALSE(user.shell.frmKino.Loaded());
  const Milliseconds before = user.host.Now();
  user.Click(Button(0));
  EXPECT_TRUE(user.ended);
  EXPECT_LT(user.host.Now() - before, 300) << "no voice takes leave";
}

TEST_F(Actions, ProgramsStartWithoutASoundCard) {
  user.host.soundCard = false;
  EntryDisc::Begin(user, EntryDisc::kProgram);
  user.host.startResult = 31;
  Press(4);
  EXPECT_EQ(user.host.started.size(), 1U);
}

TEST_F(Actions, FilmUnderAPageShowsPressedAndNoFilm) {
  EntryDisc::Begin(user, EntryDisc::kFilm);
  user.Click(Button(7));
  user.host.MoveMouse(user.MiddleOf(Button(9)));
  user.Run(100);
  user.Click(Button(9));
  EXPECT_EQ(Shown(Button(9)), "pokaz2.gif");
  EXPECT_FALSE(user.shell.frmKino.Loaded());
}

}  // namespace
}  // namespace orvanta::test
