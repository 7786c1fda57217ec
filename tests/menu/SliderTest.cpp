// The slider of lists and pages.

#include <cmath>

#include "support/Story.h"

namespace orvanta::test {
namespace {

struct Slider : Story {
  /// Eighteen labels, the first at 15: the list ends at 500, which is 191 pixels below the menu area.
  Slider() {
    disc.Menu("MAINMENU", Names(18, "Dalej"));
    disc.Menu("Dalej", Names(30, "Puste"));
    disc.Set("MENUITEM", "LabelPosY", "15");
  }
  /// The tops of the knob and of the first label. Labels that lie wholly inside the area are white, all
  /// others dim.
  std::string Look() override {
    const double upper = Main().MenuLevel == 0 ? 14 : 33;
    Main().lblPos1.ForEach([&](const Label& label) {
      const bool inView = label.Top > upper && label.Top + 26 <= 309;
      EXPECT_EQ(label.ForeColor(), inView ? 0xFFFFFF : 0x558059) << label.Index;
    });
    return "knob " + std::to_string(std::lround(Main().imgSuwak.Top)) + ", first label " +
           std::to_string(std::lround(Main().lblPos1(0).Top));
  }
  Pointer PointerNow() { return user.host.WindowOf(Main()).pointer; }
  void Move(int y) {
    user.host.MoveMouse(user.host.CursorPos() + Point{0, y});
    user.Run(10);
  }
};

TEST_F(Slider, ScrollsTheListWithinItsLimitsAndStartsAgainAtTheTop) {
  user.Do("start, run 100, drag imgSuwak 0");
  for (const auto& [by, seen] : {std::pair{1, "knob 41, first label 14"},
                                 {99, "knob 140, first label -81"},
                                 {700, "knob 240, first label -176"},
                                 {-1500, "knob 40, first label 15"}}) {
    Move(by);
    EXPECT_EQ(Look(), seen);
    EXPECT_EQ(Main().lblPos1(17).Top(), std::floor(474 - 0.955 * (Main().imgSuwak.Top - 40)));
    EXPECT_EQ(PointerNow(), Pointer::ClosedHand);
  }
  Tell({{"drop", "knob 40, first label 15"},
        {"drag imgSuwak 10, drop, hover imgSuwak", "knob 50, first label 5"}});
  EXPECT_FALSE(Main().slider.SuwakDrag) << "releasing the button outside the knob ends the drag";
  EXPECT_EQ(PointerNow(), Pointer::OpenHand);
  Main().lblPos1_Click(1);
  // The last list's position is remembered: a first move to that very position does not move the labels.
  Tell({{"run 100", "knob 40, first label 62"}, {"drag imgSuwak 10", "knob 50, first label 62"}});
  Move(1);
  EXPECT_EQ(Look(), "knob 51, first label 31");
}

TEST_F(Slider, ScrollsALongPageAndNothingThatFits) {
  disc.Set("SLIDER", "YMax", "242");
  user.Do("start, click Help, drag imgSuwak 101, drop");
  EXPECT_EQ(Main().imgPomoc.Top(), -(101.0F * (291.0F / 202.0F))) << "pages are not rounded to whole pixels";
  user.Do("click About");
  EXPECT_FALSE(Main().imgSuwak.Visible) << "this page is not taller than the area";
  Tell({{"click imgSeven", "knob 40, first label 15"}});
  EXPECT_TRUE(Main().imgSuwak.Visible);
  for (const int top : {13, 14}) {
    TestDisc other;
    other.Menu("MAINMENU", Names(11, "Puste"));
    other.Set("MENUITEM", "LabelPosY", std::to_string(top));
    other.Set("SLIDER", "YMax", "40");
    TestShell shell(other);
    shell.Do("start, drag imgSuwak 50");
    EXPECT_EQ(shell.Main().imgSuwak.Visible(), top == 14) << "it overflows by one pixel";
    EXPECT_EQ(shell.Main().imgSuwak.Top(), 40) << "the knob cannot travel";
    EXPECT_EQ(shell.Main().lblPos1(5).Top(), top + 5 * 27);
  }
}

TEST_F(Slider, SurvivesTheLargestNumbersThatADiscCanHave) {
  user.Do("start");
  auto& slider = Main().slider;
  slider.YMin = INT32_MIN;
  slider.YMax = INT32_MAX;
  slider.SetRange(INT32_MAX);
  EXPECT_EQ(slider.SuwakScale, 0.5F);
  slider.SuwakY = INT32_MIN + 1;
  slider.SuwakDir = 0;
  slider.MoveSuwak(Main().listKnob, INT32_MAX);
  EXPECT_EQ(slider.SuwakY, INT32_MIN);
}

}  // namespace
}  // namespace orvanta::test
