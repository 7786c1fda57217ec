#include <gtest/gtest.h>

#include <cmath>

#include "menu/MenuGeometry.h"
#include "support/TestShell.h"

namespace orvanta::test {
namespace {

constexpr ColourValue kWhite = 0xFFFFFF, kDim = 0x558059;

class Slider : public testing::Test {
 protected:
  /// Eighteen labels from 15 on: the list ends at 500, 191 pixels below the menu area.
  Slider() {
    disc.Menu("MAINMENU", std::vector<std::string>(18, "Gra"));
    disc.Set("MENUITEM", "LabelPosY", "15");
  }

  static void Grab(TestShell& user) {
    user.Run(100);
    user.host.MoveMouse(user.MiddleOf(user.Main().imgSuwak));
    user.host.Press();
    user.Run(1);
  }
  static void Move(TestShell& user, int x, int y) {
    user.host.MoveMouse(user.host.CursorPos() + Point{x, y});
    user.Run(1);
  }
  static void Drop(TestShell& user) {
    user.host.Release();
    user.Run(1);
  }

  TestDisc disc;
};

TEST_F(Slider, ScrollsTheListAndColoursWhatCrossesTheLimits) {
  TestShell user(disc);
  user.Start();
  MainForm& main = user.Main();
  EXPECT_EQ(main.SuwakRange, 191);
  EXPECT_FLOAT_EQ(main.SuwakScale, 0.955F);
  EXPECT_EQ(main.lblPos1(0).ForeColor(), kWhite);
  EXPECT_EQ(main.lblPos1(10).ForeColor(), kDim) << "it ends at 311";

  Grab(user);
  EXPECT_EQ(user.host.WindowOf(main).pointer, Pointer::ClosedHand);
  Move(user, 0, 1);
  EXPECT_EQ(main.lblPos1(0).Top(), 14);
  EXPECT_EQ(main.lblPos1(0).ForeColor(), kDim) << "one pixel above its first place";
  Move(user, 300, 99);  // far beside the knob
  EXPECT_EQ(main.imgSuwak.Top(), 140);
  for (int i = 0; i < 18; ++i) {
    SCOPED_TRACE(i);
    const double top = std::floor(15 + 27 * i - 95.5);
    EXPECT_EQ(main.lblPos1(i).Top(), top);
    EXPECT_EQ(main.lblPos1(i).ForeColor(), top > 14 && top + 26 <= 309 ? kWhite : kDim);
  }
  Drop(user);
  EXPECT_FALSE(main.SuwakDrag) << "a release beside the knob ends the drag";
  Move(user, -300, 5);
  EXPECT_EQ(main.imgSuwak.Top(), 140);
  EXPECT_EQ(user.host.WindowOf(main).pointer, Pointer::OpenHand) << "the cursor is on the knob again";
}

TEST_F(Slider, IsPinnedAtItsEndsWithTheListExactlyAtIts) {
  TestShell user(disc);
  user.Start();
  MainForm& main = user.Main();
  Grab(user);
  Move(user, 0, 700);
  EXPECT_EQ(main.imgSuwak.Top(), 240);
  EXPECT_EQ(main.lblPos1(17).Top() + 26, 309);
  EXPECT_EQ(main.lblPos1(17).ForeColor(), kWhite);
  Move(user, 0, -400);
  Move(user, 0, -500);
  EXPECT_EQ(main.imgSuwak.Top(), 40);
  EXPECT_EQ(main.lblPos1(0).Top(), 15);
  EXPECT_EQ(main.lblPos1(0).ForeColor(), kWhite);
}

TEST_F(Slider, FollowsTheLeftButtonAloneAndStopsTheHoverMeanwhile) {
  TestShell user(disc);
  user.Start();
  MainForm& main = user.Main();
  user.Run(100);
  user.host.MoveMouse(user.MiddleOf(main.imgSuwak));
  user.host.Press(kRightButton);
  Move(user, -300, 50);
  user.Run(100);
  EXPECT_EQ(main.imgSuwak.Top(), 40);
  EXPECT_TRUE(main.SuwakDrag);
  EXPECT_FALSE(main.Line1(0).Visible);
  user.host.Press(kLeftButton);
  Move(user, 0, 30);
  EXPECT_EQ(main.imgSuwak.Top(), 40) << "with both buttons nothing moves";
  user.host.Release(kLeftButton);
  user.host.Release(kRightButton);
  user.Run(100);
  EXPECT_TRUE(main.Line1(0).Visible);
}

TEST_F(Slider, StartsAgainAtTheTopOfEveryList) {
  disc.Set("MAINMENU", "Menu1", "Dalej");
  disc.Menu("Dalej", std::vector<std::string>(30, "Gra"));
  TestShell user(disc);
  user.Start();
  MainForm& main = user.Main();
  Grab(user);
  Move(user, 0, 10);
  Drop(user);
  ASSERT_EQ(main.lblPos1(0).Top(), 5);
  main.lblPos1_Click(0);
  EXPECT_EQ(main.imgSuwak.Top(), 40);
  EXPECT_EQ(main.lblPos1(0).Top(), 2 * 15 + 32);
  // The place of the last list is remembered: a first move to the very same one leaves the labels.
  Grab(user);
  Move(user, 0, 10);
  EXPECT_EQ(main.lblPos1(0).Top(), 62);
  Move(user, 0, 1);
  EXPECT_LT(main.lblPos1(0).Top(), 62);
  // Below the top level the strip is the upper limit, and it is not part of the view.
  for (int i = 0; i < 30; ++i) {
    const double top = main.lblPos1(i).Top;
    EXPECT_EQ(main.lblPos1(i).ForeColor(), top > 33 && top + 26 <= 309 ? kWhite : kDim);
  }
}

TEST_F(Slider, ShowsOnlyWhereSomethingOverflows) {
  struct Case {
    int labels, labelPosY;
    bool slider;
  };
  for (const Case& c : {Case{11, 13, false}, Case{11, 14, true}}) {
    TestDisc other;
    other.Menu("MAINMENU", std::vector<std::string>(static_cast<std::size_t>(c.labels), "Gra"));
    other.Set("MENUITEM", "LabelPosY", std::to_string(c.labelPosY));
    TestShell user(other);
    user.Start();
    EXPECT_EQ(user.Main().imgSuwak.Visible(), c.slider);
    EXPECT_EQ(user.Main().imgSuwakPas.Visible(), c.slider);
    EXPECT_EQ(user.Main().lblPos1(10).ForeColor(), c.slider ? kDim : kWhite);
  }
}

TEST_F(Slider, ScrollsALongPageAndLeavesTheLabels) {
  disc.Set("SLIDER", "YMax", "242");
  TestShell user(disc);
  user.Start();
  MainForm& main = user.Main();
  user.Click(main.ButtonM(3));
  ASSERT_TRUE(main.imgPomoc.Visible);
  EXPECT_EQ(main.SuwakRange, 600 - 309);
  Grab(user);
  Move(user, 0, 101);
  EXPECT_EQ(main.imgPomoc.Top(), -(101.0F * (291.0F / 202.0F))) << "no whole pixels here";
  Drop(user);
  user.Click(main.ButtonM(7));
  EXPECT_TRUE(main.imgSeven.Visible);
  EXPECT_FALSE(main.imgSuwak.Visible) << "this page fits";
  user.Click(main.imgSeven);
  EXPECT_TRUE(main.imgSuwak.Visible);
  EXPECT_EQ(main.lblPos1.UBound(), 17);
  EXPECT_EQ(main.lblPos1(0).Top(), 15);
}

TEST_F(Slider, ScrollsNothingIfItsTravelHasNoLength) {
  for (const char* end : {"40", "39", "-32768"}) {
    disc.Set("SLIDER", "YMax", end);
    TestShell user(disc);
    user.Start();
    Grab(user);
    Move(user, 0, 50);
    EXPECT_EQ(user.Main().imgSuwak.Top(), 40);
    EXPECT_EQ(user.Main().lblPos1(5).Top(), 15 + 5 * 27);
  }
}

TEST(MenuGeometry, RoundsTowardsMinusInfinityAndKeepsItsLimits) {
  EXPECT_EQ(ScrolledTop(100, 0.955F, 100), 4);
  EXPECT_EQ(ScrolledTop(120, 0.955F, 100), 24);
  EXPECT_EQ(ScrolledTop(0, 0.955F, 100), -96);
  EXPECT_FALSE(IsInView(33, 26, 33, 309)) << "the upper limit is left out";
  EXPECT_TRUE(IsInView(283, 26, 33, 309)) << "the lower one is not";
  EXPECT_EQ(SliderScale(2147483647, -2147483647 - 1, 2147483647), 0.5F);
  EXPECT_EQ(MovedKnob(-2147483647, 2147483647, true, -2147483647 - 1, 0).y, -2147483647 - 1);
}

}  // namespace
}  // namespace orvanta::test
