// The loop behind the menu: when it is heard, and how it falls silent and comes back.

#include <gtest/gtest.h>

#include "support/EntryDisc.h"

namespace orvanta::test {
namespace {

using Names = std::vector<std::string>;

class Loop : public ::testing::Test {
 protected:
  MainForm& Main() { return user.Main(); }
  int State() { return Main().AM2.CurrentState(); }
  static constexpr int kPaused = ActiveMovie::kPaused, kRunning = ActiveMovie::kRunning;

  EntryDisc disc;
  TestShell user{disc};
};

TEST_F(Loop, IsHeldByTheFirstTickAndLetGoByTheSame) {
  user.Launch();
  while (Calls(user.host, "loop.wav").empty()) user.Run(10);
  EXPECT_FALSE(user.shell.basCommon.MusicLoaded);
  user.Run(200);
  EXPECT_TRUE(user.shell.basCommon.MusicLoaded);
  EXPECT_EQ(Calls(user.host, "loop.wav"), (Names{"open", "pause", "run"}));
  user.Run(60 * 1000);
  EXPECT_EQ(State(), kRunning) << "a track of 20 seconds repeats";
  EXPECT_EQ(Calls(user.host, "loop.wav").size(), 3U);
}

TEST_F(Loop, FallsSilentSoftlyAndGoesOnFromTheSamePlace) {
  user.Start();
  const std::size_t before = user.host.playerCalls.size();
  user.host.ActivateOther();
  const Milliseconds left = user.host.Now();
  user.host.After(900, [&] {
    EXPECT_EQ(State(), kPaused);
    EXPECT_EQ(Main().AM2.Volume(), -9640);
    EXPECT_FALSE(Main().Timer1.Enabled());
  });
  user.Run(100);
  EXPECT_NEAR(static_cast<double>(user.host.Now() - left), 1000, 100) << "a second, with events pumped";
  const double held = Main().AM2.CurrentPosition();
  user.Run(5000);
  EXPECT_EQ(Calls(user.host, "loop.wav", before), (Names{"volume -9640", "pause", "volume 0"}))
      << "a loop that is paused already is left alone";
  EXPECT_TRUE(Main().Timer1.Enabled());
  user.host.Activate(Main());
  user.Run(100);
  EXPECT_EQ(State(), kRunning);
  EXPECT_NEAR(Main().AM2.CurrentPosition(), held, 0.15);
}

TEST_F(Loop, IsHeardWhereItShould) {
  user.host.media["film.avi"] = {30, {320, 240}, 0};
  user.Start();
  EXPECT_EQ(State(), kRunning) << "menu";
  user.Choose(EntryDisc::kProgram);
  EXPECT_EQ(State(), kRunning) << "program entry";
  user.host.After(2000, [&] {
    ASSERT_TRUE(user.shell.modMain.ShowPicOpen);
    EXPECT_EQ(State(), kRunning) << "viewer";
    user.host.Click(user.MiddleOf(user.shell.frmShowPic->picPic));
  });
  user.Click(Main().picShot(0));
  user.Click(Main().imgUp);
  user.Choose(EntryDisc::kMusic);
  EXPECT_EQ(State(), kPaused) << "music entry";
  user.Click(Main().imgUp);
  user.Run(100);
  EXPECT_EQ(State(), kRunning) << "it comes back on the next tick";
  user.Choose(EntryDisc::kFilm);
  EXPECT_EQ(State(), kPaused) << "film entry";
  user.host.After(4000, [&] {
    ASSERT_TRUE(user.shell.frmKino.Loaded());
    EXPECT_EQ(State(), kPaused) << "cinema";
    user.host.Click(user.MiddleOf(user.shell.frmKino->ButtonM(1)));
  });
  user.Click(Main().ButtonM(9));
  user.Run(500);
  EXPECT_EQ(State(), kPaused) << "until the user leaves the entry";
  user.Click(Main().imgBack);
  user.Run(100);
  EXPECT_EQ(State(), kRunning);
  user.host.Minimise(Main());
  user.Run(1500);
  EXPECT_EQ(State(), kPaused) << "minimised";
  user.host.Restore(Main());
  user.Run(100);
  user.host.Activate(*user.shell.frmDociagLewo);
  user.Run(1500);
  EXPECT_EQ(State(), kRunning) << "an edge window counts as active";
}

TEST_F(Loop, ObeysTheSwitch) {
  user.Start();
  user.Click(Main().ButtonM(1));
  user.Run(2000);
  EXPECT_EQ(State(), kPaused);
  user.host.ActivateOther();
  user.Run(2000);
  user.host.Activate(Main());
  user.Run(2000);
  EXPECT_EQ(State(), kPaused);
  user.Click(Main().ButtonM(2));
  user.Run(100);
  EXPECT_EQ(State(), kRunning);
}

TEST_F(Loop, StaysAwayWhenThereIsNone) {
  disc.Set("VOICES", "Music", "brak.wav");
  user.Start();
  user.Choose(EntryDisc::kMusic);
  user.Click(Main().imgUp);
  user.host.ActivateOther();
  user.Run(2000);
  EXPECT_EQ(Calls(user.host, "loop.wav"), Names{});
  EXPECT_FALSE(user.shell.basCommon.MusicLoaded);
  EXPECT_TRUE(Main().Timer1.Enabled());
}

TEST_F(Loop, AClickInTheSilentSecondIsDelivered) {
  user.Start();
  user.host.After(500, [&] { user.host.Click(user.MiddleOf(Main().ButtonM(7))); });
  user.Click(Main().ButtonM(1));
  user.Run(400);
  EXPECT_TRUE(Main().imgSeven.Visible());
  user.Run(2000);
  EXPECT_EQ(Main().AM2.Volume(), 0);
  EXPECT_TRUE(Main().Timer1.Enabled());
}

}  // namespace
}  // namespace orvanta::test
