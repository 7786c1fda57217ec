// The list, its slider and the pages under a real mouse.

#include "desktop/support/ShellOnScreen.h"

namespace orvanta::test {
namespace {

class MenuStory : public ShellOnScreen {
 protected:
  static constexpr Rect kPlace{90, 140, 472, 309};
  static constexpr Rgb kDim = 0x598055;

  static Rect InArea(const Rect& inMain) { return inMain.Moved({-kPlace.left, -kPlace.top}); }
  int LabelInk(int index, Rgb colour) const { return Ink(LabelBox(index), colour); }

  static void AddSlider(Look& look, int knob) {
    look.Fill({445, 35, 20, 270}, kBar);
    look.Fill({447, knob, 16, 20}, kKnob);
  }
  /// The area of a list, texts aside: the strip below the top level, the slider of a list that needs one.
  static Look List(int labels, bool top) {
    Look look({kPlace.width, kPlace.height}, kArea);
    if (!top) look.Fill({0, 0, 472, 33}, kLineStrip);
    if (!top) look.Fill({10, 4, 200, 26}, Look::kAnything);
    for (int i = 0; i < labels; ++i) {
      const Rect box = InArea(LabelBox(i, top));
      look.Fill({box.left, box.top, 220, box.height}, Look::kAnything);
    }
    if (labels > 10) AddSlider(look, 40);
    return look;
  }
  std::string AreaDiffers(const Look& look) const { return Differs(InMain(kPlace), look); }
};

// Faults: a box that is off by a pixel, stays behind or appears round a label that is cut off; a list that is
// rebuilt wrongly on the way down or up; a crosshair that is not painted while the program blocks; a page
// that cannot be scrolled or closed; an exit button that looks as before while the program already waits to
// end.
TEST_F(MenuStory, IsWalkedDownAndUpAndLeftByItsPages) {
  disc_.Menu("MAINMENU", {"Programy", "Nic"});
  disc_.Menu("Programy", {"Gry", "Nauka", "Inne"});
  disc_.Menu("Gry", {"Szachy"});
  Start();
  EXPECT_EQ(AreaDiffers(List(2, true)), "");
  EXPECT_GT(LabelInk(0, kWhite), 40);
  Look boxed = List(2, true);
  const Rect label = InArea(LabelBox(1));
  boxed.Frame({label.left - 2, label.top - 2, label.width + 4, label.height + 2}, kHover);
  PointAt(MiddleOf(LabelBox(1)));
  EXPECT_EQ(AreaDiffers(boxed), "");
  EXPECT_TRUE(Soon([&] { return screen_.Cursor().hotSpot == Point{3, 4}; }));
  PointAside();
  EXPECT_EQ(AreaDiffers(List(2, true)), "") << "the box stays";

  Choose(0);
  const Point cross = MiddleOf(LabelBox(0));
  EXPECT_TRUE(Soon([&] { return PixelOfMain({cross.x, 400}) == kCross && LabelInk(0, kYellow) > 40; }));
  EXPECT_EQ(PixelOfMain({500, cross.y}), kCross);
  EXPECT_TRUE(Becomes({90 + 300, 140 + 31}, kLineStrip));
  PointAside();
  EXPECT_EQ(AreaDiffers(List(3, false)), "");
  EXPECT_GT(Ink({100, 144, 200, 26}, kYellow), 40) << "the strip does not name the menu";
  constexpr Point kBackMark{515, 110}, kTopMark{555, 110};
  for (const auto& [mark, above] :
       {std::pair{kBackMark, List(3, false)}, std::pair{kTopMark, List(2, true)}}) {
    Choose(0, false);
    PointAside();
    EXPECT_EQ(AreaDiffers(List(1, false)), "");
    ClickMain(mark);
    EXPECT_EQ(AreaDiffers(above), "");
  }
  Look page = List(0, true);
  page.Fill({35, 0, 400, 600}, kHelpPage);
  AddSlider(page, 40);
  for (const Look& expected : {page, List(2, true)}) {
    ClickButton(kHelp);
    EXPECT_TRUE(Shows(kHelp, kPressed));
    PointAside();
    EXPECT_EQ(AreaDiffers(expected), "");
  }
  ClickButton(kExit);
  EXPECT_TRUE(Shows(kExit, kPressed));
  const auto begin = Clock::now();
  EXPECT_TRUE(Becomes(MiddleOf(ButtonBox(kExit)), kBehind));
  EXPECT_GT(SecondsSince(begin), 0.18);
  EXPECT_EQ(program_->Ended(), 0);
}

// Faults: a knob that does not follow the cursor pixel for pixel, runs past its ends or is lost outside its
// picture; labels that keep the wrong colour at the edges; pointers that are not ours.
TEST_F(MenuStory, TheSliderIsDragged) {
  disc_.Menu("MAINMENU", std::vector<std::string>(20, "Pozycja"));
  Start();
  EXPECT_EQ(AreaDiffers(List(20, true)), "");
  // Bottom of the list 10 + 19 * 27 + 26 = 549, so 240 pixels to scroll over 200 of the knob.
  const Point knob{90 + 447 + 8, 140 + 40 + 10};
  const auto knobAt = [&](int y) {
    Look look({kPlace.width, kPlace.height}, Look::kAnything);
    look.Fill({445, 0, 20, 309}, kArea);
    AddSlider(look, y);
    return AreaDiffers(look);
  };
  PointAt(knob);
  constexpr Point kHand{8, 7};
  EXPECT_TRUE(Soon([&] { return screen_.Cursor().hotSpot == kHand; }));
  const CursorLook open = screen_.Cursor();
  screen_.Press();
  EXPECT_TRUE(Soon([&] { return screen_.Cursor() != open && screen_.Cursor().hotSpot == kHand; }));
  PointAt({knob.x, knob.y + 25});
  EXPECT_EQ(knobAt(65), "");
  // Label 1 is now at 37 - 30, beyond the limit of 9, label 2 at 34.
  const auto inkAt = [&](int top, Rgb colour) { return Ink({110, 140 + top, 200, 26}, colour); };
  EXPECT_TRUE(Soon([&] { return inkAt(7, kDim) > 8 && inkAt(34, kWhite) > 8; }));
  EXPECT_EQ(inkAt(7, kWhite), 0);
  PointAt({300, 495});  // far outside the knob and beyond its end
  EXPECT_EQ(knobAt(240), "");
  screen_.Release();
  EXPECT_TRUE(Soon([&] { return screen_.Cursor().hotSpot != kHand; })) << "the closed hand stays";
  PointAt({300, 300});
  EXPECT_EQ(knobAt(240), "") << "the knob is still held";
}

}  // namespace
}  // namespace orvanta::test
