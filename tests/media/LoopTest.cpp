// The background music, the cues and the exit voice.

#include "support/Story.h"

namespace orvanta::test {
namespace {

struct Loop : Story {
  std::string Look() override {
    return Main().AM2.CurrentState() == ActiveMovie::kRunning ? "heard" : "silent";
  }
};

TEST_F(Loop, FadesAndGoesOnFromTheSamePlace) {
  user.Launch();
  while (user.Calls("loop.wav").empty()) user.Run(10);
  EXPECT_FALSE(user.shell.basCommon.MusicLoaded);
  Tell({{"run 60000", "heard"}});
  After(900, [&] {
    EXPECT_EQ(Main().AM2.Volume(), -9640);
    EXPECT_FALSE(Main().Timer1.Enabled());
  });
  Expect(900, "silent");
  EXPECT_NEAR(Takes("leave"), 1000, 100) << "a second in which events are pumped";
  const double held = Main().AM2.CurrentPosition();
  Tell({{"run 5000", "silent"}, {"return", "heard"}});
  EXPECT_NEAR(Main().AM2.CurrentPosition(), held, 0.15);
  EXPECT_EQ(user.Calls("loop.wav"), "open, pause, run, volume -9640, pause, volume 0, run");
}

TEST_F(Loop, IsHeardInMenusAndProgramsButNotWithOtherSound) {
  Tell({{"start", "heard"}, {"choose 0", "heard"}});
  Expect(1800, "heard");  // in the viewer
  Tell({{"after 1900 click picPic, click picShot0", "heard"},
        {"click imgUp, choose 1", "silent"},
        {"click imgUp, run 100", "heard"},
        {"choose 2", "silent"},
        {"after 4000 click kinoStop, click Film", "silent"},
        {"run 500", "silent"},
        {"click imgBack, run 100", "heard"},
        {"minimise, run 1500", "silent"},
        {"restore", "heard"},
        {"after 500 click About, click SoundOn, run 2000", "silent"},
        {"leave, run 2000, return", "silent"},
        {"click SoundOff, run 100", "heard"}});
  EXPECT_TRUE(Main().imgSeven.Visible) << "a click during the fade is delivered";
  EXPECT_EQ(Main().AM2.Volume(), 0);
  user.host.Activate(*user.shell.frmDociagLewo);
  Tell({{"run 1500", "heard"}});
}

// Faults: music that is lost and never comes back; each tick trying to fade it for a second.
TEST_F(Loop, ComesBackAfterTheSoundServerOrTheFileIsLost) {
  Tell({{"start", "heard"}});
  user.host.RestartSoundServer();
  Tell({{"run 100", "silent"}});
  EXPECT_NEAR(Takes("leave"), 1000, 100) << "paused once";
  EXPECT_NEAR(Takes("run 1000"), 1000, 20) << "then the ticks go on";
  Tell({{"return", "heard"}, {"run 4000, leave, run 1500", "silent"}});
  const double held = Main().AM2.CurrentPosition();
  user.host.RestartSoundServer();
  EXPECT_NEAR(Takes("run 1000"), 1000, 20);
  EXPECT_EQ(Main().AM2.Volume(), 0);
  Tell({{"return", "heard"}});
  EXPECT_NEAR(Main().AM2.CurrentPosition(), held, 0.15);

  std::filesystem::remove(disc.Data() / "Sound/loop.wav");
  user.host.RestartSoundServer();
  Tell({{"run 100, leave, run 1500, return, run 100", "silent"}});
  EXPECT_NEAR(Takes("run 1000"), 1000, 20) << "lost music does not stall the ticks";
}

/// Leaves the program and returns the file of the farewell voice.
std::string Farewell(const TestDisc& disc) {
  TestShell user(disc);
  user.Do("start");
  const Milliseconds before = user.host.Now();
  user.Do("click Exit");
  EXPECT_EQ(user.host.Now() - before, 200 + 2001) << "whether a voice plays or not";
  return user.host.playerCalls.back().file;
}

TEST_F(Loop, OneOfTheExitVoicesIsHeardAndAlwaysTheSame) {
  EXPECT_EQ(Farewell(disc), "exit1.wav");
  for (const std::string n : {"2", "3", "5"}) {
    disc.Sound("exit" + n, 1);
    disc.Set("VOICES", "Exit" + n, "exit" + n);
  }
  const std::string chosen = Farewell(disc);
  EXPECT_EQ(chosen, "exit3") << "of three, since the run ends at the gap";
  EXPECT_EQ(Farewell(disc), chosen) << "a disc always makes the same choice";
}

}  // namespace
}  // namespace orvanta::test
