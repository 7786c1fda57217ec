// Starting an entry's program, and what the user can do while its window is awaited.

#include <gtest/gtest.h>

#include "launcher/ExecErrorText.h"
#include "support/EntryDisc.h"

namespace orvanta::test {
namespace {

class Launch : public ::testing::Test {
 protected:
  void Begin() { EntryDisc::Begin(user, EntryDisc::kProgram); }
  bool Hourglass() { return user.Main().MousePointer == Form::kHourglassPointer; }
  void ClickAfter(Milliseconds delay, const Control& control) {
    user.host.After(delay, [this, place = user.MiddleOf(control)] { user.host.Click(place); });
  }
  /// The user goes to another program, as the started program's window would make it.
  void LeaveAfter(Milliseconds delay) {
    user.host.After(delay, [this] { user.host.ActivateOther(); });
  }

  EntryDisc disc;
  TestShell user{disc};
};

TEST_F(Launch, HandsOverFileAndParametersAndWaitsForTheProgramsWindow) {
  Begin();
  bool waiting = false, noticed = false;
  user.host.After(4900, [&] { waiting = Hourglass() && user.shell.modActiveWindow.AppActive; });
  LeaveAfter(5000);
  user.host.After(5000 + 3 * 50, [&] { noticed = !user.shell.modActiveWindow.AppActive; });
  const Milliseconds left = user.host.Now() + 5000;
  user.Click(user.Main().ButtonM(4));
  EXPECT_TRUE(waiting) << "the window comes late";
  EXPECT_TRUE(noticed) << "within three ticks";
  EXPECT_FALSE(Hourglass());
  EXPECT_LE(user.host.Now() - left, 1000 + 3 * 50) << "the music has fallen silent by then";
  ASSERT_EQ(user.host.started.size(), 1U);
  EXPECT_EQ(user.host.started[0].status, StartRequest::Status::Found);
  EXPECT_EQ(user.host.started[0].file, disc.Folder() / "gra.exe");
  EXPECT_EQ(user.host.started[0].parameters, "-a \"b c\"");
  EXPECT_TRUE(user.host.messages.empty());
}

TEST_F(Launch, NamesWhatIsMissing) {
  disc.Set("Gra", "Execute", "%:\\keine.exe");
  user.host.startResult = 2;
  Begin();
  user.Click(user.Main().ButtonM(4));
  EXPECT_EQ(user.host.started.back().status, StartRequest::Status::FileMissing);
  disc.Set("Gra", "Execute", "%:\\nie ma\\gra.exe");
  user.Click(user.Main().ButtonM(4));
  EXPECT_EQ(user.host.started.back().status, StartRequest::Status::FolderMissing);
  disc.Set("Gra", "Execute", "http://example.org/");
  disc.Remove("Gra", "Parameters");
  user.Click(user.Main().ButtonM(4));
  EXPECT_EQ(user.host.started.back().name, "http://example.org/");
  EXPECT_EQ(user.host.started.back().parameters, "");
}

TEST_F(Launch, TellsOfEachFailureAtOnceAndOfNothingElse) {
  Begin();
  LeaveAfter(3600 * 100);
  for (int code = 0; code <= 32; ++code) {
    user.host.startResult = code;
    user.host.messages.clear();
    const Milliseconds before = user.host.Now();
    user.Click(user.Main().ButtonM(4));
    EXPECT_LT(user.host.Now() - before, 100);
    ASSERT_EQ(user.host.messages.size(), 1U) << code;
    EXPECT_EQ(user.host.messages[0].text, ExecErrorText(code).value());
    EXPECT_EQ(user.host.messages[0].title, "Orvanta Shell");
    EXPECT_EQ(user.host.messages[0].style, 16);
    EXPECT_FALSE(Hourglass());
  }
  user.host.messages.clear();
  user.host.startResult = -1;
  user.Click(user.Main().ButtonM(4));
  EXPECT_TRUE(user.host.messages.empty());
}

TEST_F(Launch, ASecondClickStartsItAgainOneLevelDeeper) {
  Begin();
  ClickAfter(500, user.Main().ButtonM(4));
  LeaveAfter(2000);
  user.Click(user.Main().ButtonM(4));
  EXPECT_EQ(user.host.started.size(), 2U);
  EXPECT_FALSE(Hourglass());
  EXPECT_FALSE(user.shell.modActiveWindow.AppActive);
}

TEST_F(Launch, TheUserCanGoBackDuringTheWait) {
  Begin();
  ClickAfter(500, user.Main().imgBack);
  std::string seen;
  user.host.After(1000, [&] { seen = user.Main().lblPos1(3).Caption; });
  LeaveAfter(2000);
  user.Click(user.Main().ButtonM(4));
  EXPECT_EQ(seen, "Dalej");
  EXPECT_EQ(user.Main().MenuLevel, 0);
  EXPECT_FALSE(Hourglass());
}

TEST_F(Launch, MinimisingEndsTheWait) {
  Begin();
  ClickAfter(1000, user.Main().ButtonM(8));
  const Milliseconds before = user.host.Now();
  user.Click(user.Main().ButtonM(4));
  EXPECT_FALSE(Hourglass());
  EXPECT_LT(user.host.Now() - before, 1000 + 500 + 1000 + 3 * 50);
}

TEST_F(Launch, TheUserCanLeaveTheProgramFromANestedWait) {
  Begin();
  ClickAfter(300, user.Main().ButtonM(4));
  ClickAfter(600, user.Main().ButtonM(0));
  user.Click(user.Main().ButtonM(4));
  EXPECT_TRUE(user.ended);
  EXPECT_EQ(user.host.started.size(), 2U);
  EXPECT_EQ(Calls(user.host, "exit1.wav"), std::vector<std::string>{"open"});
}

TEST_F(Launch, AStartWhileTheMusicFallsSilentStillEndsItsWait) {
  Begin();
  ClickAfter(600, user.Main().ButtonM(4));  // within the second of the soft pause
  LeaveAfter(5000);
  user.Click(user.Main().ButtonM(1));
  user.Run(6000);
  EXPECT_EQ(user.host.started.size(), 1U);
  EXPECT_FALSE(Hourglass());
  EXPECT_TRUE(user.Main().Timer1.Enabled());
  EXPECT_EQ(user.Main().AM2.Volume(), 0);
}

}  // namespace
}  // namespace orvanta::test
