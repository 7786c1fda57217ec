// The ten buttons of the bar: their positions, how they follow the cursor and what they do.

#include <algorithm>

#include "support/Story.h"

namespace orvanta::test {
namespace {

struct Buttons : Story {
  std::string Look() override {
    const char* entry = Main().picTlo.Visible ? "list" : "entry";
    const std::string middle = Main().imgPomoc.Visible ? "help" : Main().imgSeven.Visible ? "about" : entry;
    const std::string looks = user.Looks({BarButton::Start, BarButton::Pause, BarButton::Stop});
    return middle + ", " + NameOf(Main().PressedButton) + " latched" + (looks.empty() ? "" : ", ") + looks;
  }
  /// The hovered button.
  BarButton Hovered() {
    const int position = user.shell.modMouse.LastOver[0];
    if (position < 0) return BarButton::None;
    return BarButton{Main().Controls()[static_cast<std::size_t>(position)]->Index};
  }
  /// The visible buttons.
  static std::string There(TestShell& shell) {
    std::string names;
    for (std::int16_t i = 0; i < 10; ++i)
      if (shell.Button(i).Visible) names += NameOf(BarButton{i}) + " ";
    return names;
  }
  /// Clicks a button, expects it to be painted pressed during exactly one pause, and returns the length of
  /// that pause.
  Milliseconds PressedFor(BarButton button) {
    Milliseconds pause = 0;
    user.host.OnSleep = [&] {
      EXPECT_EQ(pause, 0) << "a second pause";
      EXPECT_TRUE(user.host.WindowOf(Main()).dirty.Empty());
      EXPECT_EQ(user.Looks({button}), NameOf(button) + " pressed");
      pause = user.host.sleeps.back().duration;
    };
    user.Do("click " + NameOf(button));
    user.host.OnSleep = nullptr;
    return pause;
  }
};

TEST_F(Buttons, TakePositionsFromTheDiscAndSizesFromTheirPicturesAndAreShownWhenNeeded) {
  disc.Picture("hlp1.gif", 50, 60);
  disc.Remove("GLOBAL", "PokazB");
  const int lefts[] = {560, 480, 480, 400, 120, 170, 220, 440, 520, 300};
  for (const std::string sound : {"SoundOn", "SoundOff"}) {
    TestShell shell(disc);
    shell.host.soundCard = sound == "SoundOn";
    shell.Do("start, hover Help");
    for (int i = 0; i < 10; ++i) EXPECT_EQ(shell.Button(i).Left(), lefts[i]);
    EXPECT_EQ(shell.Button(BarButton::Help).Bounds(), (Rect{400, 70, 50, 60}));
    EXPECT_EQ(shell.Button(BarButton::Film).Bounds(), (Rect{300, 465, 32, 32})) << "it can still be clicked";
    const std::string always = "Exit " + sound + " Help ";
    for (const auto& [entry, buttons] : {std::pair{"choose 0", "Start About Minimise "},
                                         {"choose 1", "Start Pause Stop About Minimise "},
                                         {"choose 2", "About Minimise Film "},
                                         {"choose 3", "About Minimise "}}) {
      shell.Do(entry);
      EXPECT_EQ(There(shell), always + buttons);
      shell.Do("click imgUp");
      EXPECT_EQ(There(shell), always + "About Minimise ");
    }
  }
}

TEST_F(Buttons, KeepTheLatchedOneAsItIs) {
  const std::tuple<const char*, std::string, BarButton> steps[] = {
      {"start, choose 1, hover Stop", "Stop pressed", BarButton::Stop},
      {"aside", "Stop pressed", BarButton::Stop},  // the slot keeps the latched button
      {"hover Start", "Start over, Stop pressed", BarButton::Start},
      {"hover Stop", "Stop pressed", BarButton::Start},  // the slot keeps the button that was left
      {"aside", "Stop pressed", BarButton::None},
      {"hover Stop, aside", "Stop pressed", BarButton::Stop},
      {"click Start", "Start pressed", BarButton::Stop},
      {"aside", "Start pressed", BarButton::None}};  // another button is latched now
  for (const auto& [act, looks, hovered] : steps) {
    user.Do(act);
    EXPECT_EQ(user.Looks({BarButton::Start, BarButton::Stop}), looks) << act;
    EXPECT_EQ(Hovered(), hovered) << act;
  }
}

TEST_F(Buttons, KeepALookUntilTheCursorLeavesAndDoNotChangeWhileAnotherProgramIsActive) {
  user.host.startResult = 2;
  disc.Set("Piosenka", "Execute", "%:\\gra.exe");  // with both keys, the entry is a program
  user.Do("start, choose 1, hover Start, click Start, run 1000");
  EXPECT_EQ(user.host.started.size(), 1U);
  EXPECT_EQ(user.Looks({BarButton::Start}), "Start over") << "under the cursor after the box has closed";
  user.Do("hover Exit, leave, run 1500, aside, return");
  EXPECT_EQ(user.Looks({BarButton::Start, BarButton::Exit}), "Exit over")
      << "kept until the cursor has entered and left it again";
  EXPECT_EQ(Hovered(), BarButton::None);
  user.host.messageHold = 1000;
  user.Do("hover Start, after 500 aside, click Start");
  EXPECT_EQ(user.Looks({BarButton::Start}), "") << "the cursor has left for the button of the message box";
}

TEST_F(Buttons, ShowThemselvesPressedWhileTheyAct) {
  user.Do("start");
  EXPECT_EQ(PressedFor(BarButton::SoundOn), 300);
  EXPECT_EQ(There(user), "Exit SoundOff Help About Minimise ");
  EXPECT_EQ(user.Looks({BarButton::SoundOff}), "SoundOff over");
  EXPECT_FALSE(user.shell.basCommon.SoundWanted);
  EXPECT_FALSE(user.Button(BarButton::SoundOn).Enabled());
  user.Do("run 2000");
  EXPECT_EQ(PressedFor(BarButton::SoundOff), 300);
  EXPECT_EQ(There(user), "Exit SoundOn Help About Minimise ");
  EXPECT_EQ(user.Looks({BarButton::SoundOn}), "SoundOn over");
  EXPECT_TRUE(user.shell.basCommon.SoundWanted);
  EXPECT_TRUE(user.Button(BarButton::SoundOn).Enabled());
  EXPECT_EQ(PressedFor(BarButton::Minimise), 500);
  user.Do("restore");
  EXPECT_EQ(PressedFor(BarButton::Help), 300);
  EXPECT_EQ(user.Looks({BarButton::Help}), "Help over");
  const Milliseconds before = user.host.Now();
  EXPECT_EQ(PressedFor(BarButton::Exit), 200);
  const auto stop = std::ranges::find(user.host.playerCalls, "stop", &HeadlessHost::PlayerCall::call);
  EXPECT_EQ(stop->time, before + 200) << "before any sound stops";
}

TEST_F(Buttons, OpenAndClosePagesOverAListAndAnEntry) {
  Tell({{"start, press Help", "help, none latched"},
        {"press About", "about, none latched"},
        {"press About", "list, none latched"},
        {"press Help, click imgPomoc", "list, none latched"},
        {"choose 0", "entry, none latched"},
        {"press About", "about, none latched"},
        {"press Start", "about, none latched"},  // ignored, since the page covers the entry
        {"press About", "entry, none latched"}});
  EXPECT_TRUE(user.host.started.empty());
  EXPECT_TRUE(user.Button(BarButton::Start).Visible());
  EXPECT_TRUE(Main().picShot(0).Visible());
  Tell({{"click imgUp, choose 1, press Help",
         "help, Stop latched, Stop pressed"},  // the player has never had a file
        {"press Help, press Start", "entry, Start latched, Start pressed"},
        {"press Help, press About",
         "entry, Start latched, Start pressed"},  // pages open only while the music is stopped
        {"press Pause, press Help, press About", "entry, Pause latched, Pause pressed"},
        {"press Stop, press About",
         "about, none latched, Stop pressed"},  // it is no longer latched but still looks pressed
        {"hover Stop", "about, none latched, Stop over"},
        {"aside, press About", "entry, Stop latched, Stop pressed"},
        {"click imgUp, choose 2, press About, click Film", "about, none latched, Stop pressed"}});
  EXPECT_EQ(user.Looks({BarButton::Film}), "Film pressed");
  EXPECT_FALSE(user.shell.frmKino.Loaded()) << "no film starts under a page";
}

TEST_F(Buttons, WithoutASoundCardTellTheUserAndPlayNothing) {
  user.host.soundCard = false;
  Tell({{"start, choose 1, press SoundOff, press Pause, press Stop, press Start",
         "entry, Stop latched, Stop pressed"},
        {"click imgUp, choose 2, press Film", "entry, none latched, Stop pressed"}});
  ASSERT_EQ(user.host.messages.size(), 2U);
  const std::string card = "Brak lub źle skonfigurowana karta dźwiękowa.\r\nOdtworzenie ";
  EXPECT_EQ(user.host.messages[0].text, card + "muzyki jest niemożliwe.");
  EXPECT_EQ(user.host.messages[1].text, card + "filmu jest niemożliwe.");
  EXPECT_EQ(user.host.messages[1].title, "Płyta próbna");
}

}  // namespace
}  // namespace orvanta::test
