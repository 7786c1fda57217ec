// The bar of ten: where it stands, how it follows the cursor and what it does.

#include <algorithm>

#include "support/Story.h"

namespace orvanta::test {
namespace {

struct Buttons : Story {
  /// What the middle shows, the latch and how Start, Pauza and Stop look.
  std::string Look() override {
    const char* entry = Main().picTlo.Visible ? "list" : "entry";
    const std::string middle = Main().imgPomoc.Visible ? "help" : Main().imgSeven.Visible ? "about" : entry;
    return middle + " " + std::to_string(Main().PressedButton) + " " + user.Looks({4, 5, 6});
  }
  /// The button that counts as hovered, -1 for none.
  int Hovered() {
    const int position = user.shell.modMouse.LastOver[0];
    return position < 0 ? -1 : Main().Controls()[static_cast<std::size_t>(position)]->Index;
  }
  /// The buttons that are there.
  static std::string There(TestShell& shell) {
    std::string text;
    for (int i = 0; i < 10; ++i) text += shell.Button(i).Visible ? std::to_string(i) : "";
    return text;
  }
  /// Clicks a button and gives how it looked, painted, during each pause that followed: "2 for 300".
  std::string Pressed(int i) {
    std::string looks;
    user.host.OnSleep = [&] {
      const bool painted = user.host.WindowOf(Main()).dirty.Empty();
      looks += (painted ? user.Looks({i}) : "?") + " for " + std::to_string(user.host.sleeps.back().duration);
    };
    user.Do("click ButtonM" + std::to_string(i));
    user.host.OnSleep = nullptr;
    return looks;
  }
};

TEST_F(Buttons, TakePlacesFromTheDiscAndSizesFromTheirPicturesAndAreThereWhereNeeded) {
  disc.Picture("hlp1.gif", 50, 60);
  disc.Remove("GLOBAL", "PokazB");
  const int lefts[] = {560, 480, 480, 400, 120, 170, 220, 440, 520, 300};
  for (const std::string pair : {"1", "2"}) {
    TestShell shell(disc);
    shell.host.soundCard = pair == "1";
    shell.Do("start, hover ButtonM3");
    for (int i = 0; i < 10; ++i) EXPECT_EQ(shell.Button(i).Left(), lefts[i]);
    EXPECT_EQ(shell.Button(3).Bounds(), (Rect{400, 70, 50, 60}));
    EXPECT_EQ(shell.Button(9).Bounds(), (Rect{300, 465, 32, 32})) << "without art it can still be clicked";
    for (const std::string buttons : {"0 478", "1 45678", "2 789", "3 78"}) {
      shell.Do("choose " + buttons.substr(0, 1));
      EXPECT_EQ(There(shell), "0" + pair + "3" + buttons.substr(2));
      shell.Do("click imgUp");
      EXPECT_EQ(There(shell), "0" + pair + "378");
    }
  }
}

TEST_F(Buttons, LeaveTheLatchedOneAlone) {
  const std::pair<const char*, std::string> steps[] = {
      {"start, choose 1, hover ButtonM6", "02 6"},
      {"aside", "02 6"},  // the slot keeps the latched button
      {"hover ButtonM4", "12 4"},
      {"hover ButtonM6", "02 4"},  // the first goes back, and the slot goes on naming it
      {"aside", "02 -1"},
      {"hover ButtonM6, aside", "02 6"},
      {"click ButtonM4", "20 6"},
      {"aside", "20 -1"}};  // the latch has moved on
  for (const auto& [act, seen] : steps) {
    user.Do(act);
    EXPECT_EQ(user.Looks({4, 6}) + " " + std::to_string(Hovered()), seen) << act;
  }
}

TEST_F(Buttons, KeepALookUntilTheCursorLeavesAndStandStillBehindAnotherProgram) {
  user.host.startResult = 2;
  disc.Set("Piosenka", "Execute", "%:\\gra.exe");  // an entry with both keys is a program
  user.Do("start, choose 1, hover ButtonM4, click ButtonM4, run 1000");
  EXPECT_EQ(user.host.started.size(), 1U);
  EXPECT_EQ(user.Looks({4}), "2");
  user.Do("hover ButtonM0, leave, run 1500, aside, return");
  EXPECT_EQ(user.Looks({4, 0}), "01") << "kept until the cursor has entered and left it once more";
  EXPECT_EQ(Hovered(), -1);
}

TEST_F(Buttons, ShowThemselvesPressedWhileTheyAct) {
  user.Do("start");
  EXPECT_EQ(Pressed(1), "2 for 300");
  EXPECT_EQ(There(user) + " " + user.Looks({2}), "02378 1");
  EXPECT_FALSE(user.shell.basCommon.SoundWanted || user.Button(1).Enabled());
  user.Do("run 2000");
  EXPECT_EQ(Pressed(2), "2 for 300");
  EXPECT_EQ(There(user) + " " + user.Looks({1}), "01378 1");
  EXPECT_TRUE(user.shell.basCommon.SoundWanted && user.Button(1).Enabled());
  EXPECT_EQ(Pressed(8), "2 for 500");
  user.Do("restore");
  EXPECT_EQ(Pressed(3), "2 for 300");
  EXPECT_EQ(user.Looks({3}), "1");
  const Milliseconds before = user.host.Now();
  EXPECT_EQ(Pressed(0), "2 for 200");
  const auto stop = std::ranges::find(user.host.playerCalls, "stop", &HeadlessHost::PlayerCall::call);
  EXPECT_EQ(stop->time, before + 200) << "before any sound stops";
}

TEST_F(Buttons, OpenAndClosePagesInTurnOverAListAndAnEntry) {
  Tell({{"start, press 3", "help -1 000"},
        {"press 7", "about -1 000"},
        {"press 7", "list -1 000"},
        {"press 3, click imgPomoc", "list -1 000"},
        {"choose 0", "entry -1 000"},
        {"press 7", "about -1 000"},
        {"press 4", "about -1 000"},  // the page covers the entry
        {"press 7", "entry -1 000"}});
  EXPECT_TRUE(user.host.started.empty() && user.Button(4).Visible && Main().picShot(0).Visible);
  Tell({{"click imgUp, choose 1, press 3", "help 6 002"},  // the player has never had a file
        {"press 3, press 4", "entry 4 200"},
        {"press 3, press 7", "entry 4 200"},  // only while the music is stopped
        {"press 5, press 3, press 7", "entry 5 020"},
        {"press 6, press 7", "about -1 002"},  // the latch is gone, its look is not
        {"hover ButtonM6", "about -1 001"},
        {"aside, press 7", "entry 6 002"},
        {"click imgUp, choose 2, press 7, click ButtonM9", "about -1 002"}});
  EXPECT_EQ(user.Looks({9}), "2");
  EXPECT_FALSE(user.shell.frmKino.Loaded()) << "no film under a page";
}

TEST_F(Buttons, WithoutASoundCardTellTheUserAndPlayNothing) {
  user.host.soundCard = false;
  Tell({{"start, choose 1, press 2, press 5, press 6, press 4", "entry 6 002"},
        {"click imgUp, choose 2, press 9", "entry -1 002"}});
  ASSERT_EQ(user.host.messages.size(), 2U);
  const std::string card = "Brak lub źle skonfigurowana karta dźwiękowa.\r\nOdtworzenie ";
  EXPECT_EQ(user.host.messages[0].text, card + "muzyki jest niemożliwe.");
  EXPECT_EQ(user.host.messages[1].text, card + "filmu jest niemożliwe.");
  EXPECT_EQ(user.host.messages[1].title, "Płyta próbna");
}

}  // namespace
}  // namespace orvanta::test
