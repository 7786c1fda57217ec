// How the picture buttons follow the cursor.

#include <gtest/gtest.h>

#include "support/EntryDisc.h"

namespace orvanta::test {
namespace {

class Hover : public ::testing::Test {
 protected:
  Image& Button(int i) { return user.Main().ButtonM(i); }
  /// Puts the cursor at a place of a button's own pixels, or of the middle, and lets two ticks pass.
  void Rest(int i, Point inside) {
    const Rect form = user.Main().Place(), box = Button(i).Bounds();
    user.host.MoveMouse({form.left + box.left + inside.x, form.top + box.top + inside.y});
    user.Run(100);
  }
  void Rest(int i) { Rest(i, {18, 12}); }
  void Leave() {
    user.host.MoveMouse(EntryDisc::kAside);
    user.Run(100);
  }
  std::string Looks(std::initializer_list<int> indices) {
    std::string text;
    for (const int i : indices) text += (text.empty() ? "" : " ") + Shown(Button(i));
    return text;
  }
  /// The button that counts as hovered, -1 for none.
  int Hovered() {
    const int position = user.shell.modMouse.LastOver[0];
    return position < 0 ? -1 : user.Main().Controls()[static_cast<std::size_t>(position)]->Index;
  }
  void ClickButton(int i) {
    Rest(i);
    user.Click(Button(i));
  }

  EntryDisc disc;
  TestShell user{disc};
};

TEST_F(Hover, EntersAndLeavesWithinABorderThatIsNotPartOfTheButton) {
  user.Start();
  const int right = 36, bottom = 24;
  for (const Point on : {Point{1, 1}, {right - 1, 1}, {1, bottom - 1}, {right - 1, bottom - 1}}) {
    Rest(0, on);
    EXPECT_EQ(Shown(Button(0)), "ext1.gif") << on.x << ", " << on.y;
    Leave();
    EXPECT_EQ(Shown(Button(0)), "ext0.gif");
  }
  for (const Point off : {Point{0, 5}, {right, 5}, {5, 0}, {5, bottom}}) {
    Rest(0, off);
    EXPECT_EQ(Shown(Button(0)), "ext0.gif") << off.x << ", " << off.y;
  }
}

TEST_F(Hover, ChangesBothButtonsOfAJumpInOneTick) {
  user.Start();
  Rest(0);
  user.host.MoveMouse(user.MiddleOf(Button(8)));
  while (Shown(Button(8)) != "min1.gif") {
    ASSERT_EQ(Shown(Button(0)), "ext1.gif");
    user.Run(1);
  }
  EXPECT_EQ(Shown(Button(0)), "ext0.gif");
}

TEST_F(Hover, GivesThePlaceOfTwoButtonsToTheOneCreatedFirstAndToNoneThatIsHidden) {
  disc.Set("GLOBAL", "InfoX", "400");  // the place of the help button
  disc.Set("GLOBAL", "PokazX", "480"), disc.Set("GLOBAL", "PokazY", "70");
  user.Start();
  Rest(7);
  EXPECT_EQ(Looks({3, 7}), "hlp1.gif info0.gif");
  Rest(9);
  EXPECT_EQ(Looks({1, 2, 9}), "snd11.gif snd20.gif pokaz0.gif") << "one is there, two are hidden";
}

TEST_F(Hover, LeavesTheLatchedButtonAlone) {
  EntryDisc::Begin(user, EntryDisc::kMusic);
  ASSERT_EQ(user.Main().PressedButton, 6);
  Rest(6);
  EXPECT_EQ(Looks({4, 6}), "start0.gif stop2.gif");
  Leave();
  EXPECT_EQ(Looks({4, 6}), "start0.gif stop2.gif");
  EXPECT_EQ(Hovered(), 6) << "the slot keeps the latched button";
  Rest(4);
  EXPECT_EQ(Looks({4, 6}), "start1.gif stop2.gif");

  // From another button onto the latched one: the first goes back, and the slot goes on naming it.
  Rest(6);
  EXPECT_EQ(Looks({4, 6}), "start0.gif stop2.gif");
  EXPECT_EQ(Hovered(), 4);
  Button(4).Picture = user.Main().ImageList1(15);
  user.Run(60);
  EXPECT_EQ(Shown(Button(4)), "start0.gif") << "given its normal picture at each tick";
  Leave();
  EXPECT_EQ(Hovered(), -1);
}

TEST_F(Hover, GivesBackALookWhoseLatchHasMovedOn) {
  EntryDisc::Begin(user, EntryDisc::kMusic);
  Rest(6);
  Leave();
  ASSERT_EQ(Hovered(), 6);
  user.Main().ButtonM_Click(4);
  ASSERT_EQ(user.Main().PressedButton, 4);
  Button(6).Picture = user.Main().ImageList1(21);
  user.Run(100);
  EXPECT_EQ(Shown(Button(6)), "stop0.gif");
  EXPECT_EQ(Hovered(), -1);
}

TEST_F(Hover, KeepsThePressedLookOfAClickUntilTheCursorLeaves) {
  EntryDisc::Begin(user, EntryDisc::kProgram);
  user.host.startResult = 2;
  ClickButton(4);
  user.Run(1000);
  EXPECT_EQ(Shown(Button(4)), "start2.gif");
  Leave();
  EXPECT_EQ(Shown(Button(4)), "start0.gif");
}

TEST_F(Hover, StandsStillWhileAnotherProgramIsActiveAndBeginsAnewAfterwards) {
  user.Start();
  Rest(0);
  user.host.ActivateOther();
  user.Run(1500);
  Leave();
  EXPECT_EQ(Shown(Button(0)), "ext1.gif");
  user.host.Activate(user.Main());
  user.Run(100);
  EXPECT_EQ(Hovered(), -1);
  EXPECT_EQ(Shown(Button(0)), "ext1.gif") << "kept until the cursor has entered and left it once more";
  Rest(0);
  Leave();
  EXPECT_EQ(Shown(Button(0)), "ext0.gif");
}

TEST_F(Hover, FindsTheSameButtonsWhateverElseIsLoaded) {
  disc.Set("Gra", "Shot2", "shot.gif");
  EntryDisc::Begin(user, EntryDisc::kProgram);
  Rest(0);
  const int before = user.shell.modMouse.LastOver[0];
  Leave();
  user.Click(user.Main().imgUp);
  Rest(0);
  EXPECT_EQ(user.shell.modMouse.LastOver[0], before);
  EXPECT_EQ(Hovered(), 0);
}

TEST_F(Hover, AssignsPicturesAtTransitionsAlone) {
  EntryDisc::Begin(user, EntryDisc::kMusic);
  const std::vector<int> shown = {0, 1, 3, 4, 5, 6, 7, 8};
  const HeadlessWindow& window = user.host.WindowOf(user.Main());
  const std::size_t loaded = user.host.pictures.size();
  for (const int i : shown) Rest(i);
  const int paints = window.paints;
  int transitions = 0;
  for (int second = 0; second < 60; ++second) {
    const int i = shown[static_cast<std::size_t>(second) % shown.size()];
    Rest(i), ++transitions;
    user.Run(900);
  }
  EXPECT_LE(window.paints - paints, transitions);
  EXPECT_GE(window.paints - paints, transitions * 3 / 4) << "only the latched button is left out";
  EXPECT_EQ(user.host.pictures.size(), loaded) << "nothing is read from the disc";
}

}  // namespace
}  // namespace orvanta::test
