// The list, its slider and the pages under a real mouse.

#include <chrono>

#include "desktop/ShellOnScreen.h"

namespace orvanta::test {
namespace {

class Menu : public ShellOnScreen {
 protected:
  static constexpr Rect kArea{90, 140, 472, 309};
  static constexpr Rgb kAreaColour = ShellOnScreen::kArea, kWhite = 0xFFFFFF, kDim = 0x598055,
                       kYellow = 0xFFFF00;
  static constexpr Point kBackMark{515, 110}, kTopMark{555, 110};

  Look SeeLabel(int index, bool top) const { return screen_.See(InMain(LabelBox(index, top))); }
  int Ink(int index, bool top, Rgb colour) const {
    const Rect box = LabelBox(index, top);
    return SeeLabel(index, top).Count({0, 0, box.width, box.height}, colour);
  }
  bool HasStrip() const { return PixelOfMain({90 + 300, 140 + 31}) == kLineStrip; }

  /// The list's area without its texts: the strip below the top level, the slider, the hover box.
  Look ListLook(int labels, bool top) const {
    Look look(kArea.width, kArea.height, kAreaColour);
    for (int i = 0; i < labels; ++i) {
      const Rect box = LabelBox(i, top);
      look.Fill({box.left - kArea.left, box.top - kArea.top, 220, box.height}, Look::kAnything);
    }
    if (top) return look;
    look.Fill({0, 0, 472, 33}, kLineStrip);
    look.Fill({10, 4, 200, 26}, Look::kAnything);
    return look;
  }
  void AddBox(Look& look, int index, bool top) const {
    const Rect box = LabelBox(index, top);
    look.Frame({box.left - kArea.left - 2, box.top - kArea.top - 2, box.width + 4, box.height + 2}, kHover);
  }
  std::string AreaDiffers(const Look& look) const { return Differs(InMain(kArea), look); }
};

// Faults: a box that is off by a pixel, stays behind or appears round a label that is cut off; a list that is
// rebuilt wrongly on the way down or up; a crosshair that is not painted while the program blocks.
TEST_F(Menu, IsWalkedDownAndUp) {
  disc_.Menu("MAINMENU", {"Programy", "Nic"});
  disc_.Menu("Programy", {"Gry", "Nauka", "Inne"});
  disc_.Menu("Gry", {"Szachy"});
  Start();
  EXPECT_EQ(AreaDiffers(ListLook(2, true)), "");
  EXPECT_GT(Ink(0, true, kWhite), 40);
  EXPECT_GT(Ink(1, true, kWhite), 10);
  for (const int index : {1, 0}) {
    Look look = ListLook(2, true);
    AddBox(look, index, true);
    PointAt(MiddleOf(LabelBox(index, true)));
    EXPECT_EQ(AreaDiffers(look), "") << "label " << index;
  }
  EXPECT_TRUE(Soon([&] { return screen_.Cursor().hotSpot == Point{3, 4}; }));
  EXPECT_EQ(screen_.Cursor().width, 32);
  PointAt({300, 455});
  EXPECT_EQ(AreaDiffers(ListLook(2, true)), "") << "the box stays";

  Choose(0, true);
  const Point cross = MiddleOf(LabelBox(0, true));
  EXPECT_TRUE(Soon([&] { return PixelOfMain({cross.x, 400}) == kCross && Ink(0, true, kYellow) > 40; }));
  EXPECT_EQ(PixelOfMain({500, cross.y}), kCross);
  Look below = ListLook(3, false);
  EXPECT_TRUE(Soon([&] { return HasStrip(); }));
  PointAt({300, 455});
  EXPECT_EQ(AreaDiffers(below), "");
  EXPECT_GT(screen_.See(InMain(Rect{100, 144, 200, 26})).Count({0, 0, 200, 26}, 0xFFFF00), 40)
      << "the strip does not name the menu";

  Choose(0, false);
  PointAt({300, 455});
  EXPECT_EQ(AreaDiffers(ListLook(1, false)), "");
  ClickMain(kBackMark);
  EXPECT_EQ(AreaDiffers(below), "");
  Choose(0, false);
  PointAt({300, 455});
  EXPECT_EQ(AreaDiffers(ListLook(1, false)), "");
  ClickMain(kTopMark);
  EXPECT_EQ(AreaDiffers(ListLook(2, true)), "");
  ClickMain(kBackMark);  // out of use at the top
  Choose(1, true);
  EXPECT_TRUE(Soon([&] { return PixelOfMain({cross.x, 400}) == kCross; }));
  EXPECT_TRUE(Soon([&] { return PixelOfMain({cross.x, 400}) == kAreaColour; }));
  EXPECT_GT(Ink(1, true, kYellow), 10) << "an item that leads nowhere stays marked";
}

// Faults: a knob that does not follow the cursor pixel for pixel, runs past its ends or is lost outside its
// picture; labels that keep the wrong colour at the edges; pointers that are not ours.
TEST_F(Menu, TheSliderIsDragged) {
  std::vector<std::string> names;
  for (int i = 0; i < 20; ++i) names.push_back("Pozycja " + std::to_string(i));
  disc_.Menu("MAINMENU", names);
  Start();
  // Bottom of the list 10 + 19 * 27 + 26 = 549, so 240 pixels to scroll over 200 of the knob.
  const Point knob{90 + 447 + 8, 140 + 40 + 10};
  const auto knobAt = [&](int y) {
    Look column(16, 309, kBar);
    column.Fill({0, 0, 16, 35}, kAreaColour);
    column.Fill({0, 305, 16, 4}, kAreaColour);
    column.Fill({0, y, 16, 20}, kKnob);
    return Differs(InMain(Rect{90 + 447, 140, 16, 309}), column);
  };
  EXPECT_EQ(knobAt(40), "");
  PointAt(knob);
  EXPECT_TRUE(Soon([&] { return screen_.Cursor().hotSpot == Point{8, 7}; }));
  const CursorLook open = screen_.Cursor();
  EXPECT_EQ(open.height, 32);
  screen_.Press();
  EXPECT_TRUE(Soon([&] {
    return screen_.Cursor().argb != open.argb && screen_.Cursor().hotSpot == Point{8, 7};
  }));

  const auto inkAt = [&](int top, Rgb colour) {
    return screen_.See(InMain(Rect{110, 140 + top, 200, 26})).Count({0, 0, 200, 26}, colour);
  };
  PointAt({knob.x, knob.y + 25});
  EXPECT_EQ(knobAt(65), "");
  // Label 1 is now at 37 - 30, beyond the limit of 9, label 2 at 34.
  EXPECT_TRUE(Soon([&] { return inkAt(7, kDim) > 8 && inkAt(34, kWhite) > 8; }));
  EXPECT_EQ(inkAt(7, kWhite), 0);
  PointAt({300, knob.y + 100});  // far outside the knob
  EXPECT_EQ(knobAt(140), "");
  PointAt({300, 495});
  EXPECT_EQ(knobAt(240), "");
  EXPECT_TRUE(Soon([&] { return inkAt(283, kWhite) > 8; })) << "label 19 ends at the area's bottom: in view";
  screen_.Release();
  EXPECT_TRUE(Soon([&] {
    return screen_.Cursor().argb != open.argb && screen_.Cursor().hotSpot != Point{8, 7};
  })) << "the closed hand stays after a release elsewhere";
  PointAt({300, 300});
  EXPECT_EQ(knobAt(240), "") << "the knob is still held";

  PointAt({knob.x, knob.y + 200});
  EXPECT_TRUE(Soon([&] { return screen_.Cursor().argb == open.argb; }));
  screen_.Drag(InMain(Point{knob.x, knob.y + 200}), InMain(Point{knob.x, 0}));
  EXPECT_EQ(knobAt(40), "");
  EXPECT_TRUE(Soon([&] { return Ink(0, true, kWhite) > 8; }));
}

// Faults: a page that cannot be scrolled or closed, a button without its pressed look, a list that is lost.
TEST_F(Menu, PagesAreOpenedScrolledAndClosed) {
  disc_.Menu("MAINMENU", {"Programy", "Nic"});
  Start();
  const auto page = [&](Rgb colour, int height, bool slider, int knob) {
    Look look(kArea.width, kArea.height, kAreaColour);
    if (slider) {
      look.Fill({445, 35, 20, 270}, kBar);
      look.Fill({447, knob, 16, 20}, kKnob);
    }
    look.Fill({35, 0, 400, height}, colour);
    return look;
  };
  const auto press = [&](int button) {
    ClickMain(MiddleOf(ButtonBox(button)));
    EXPECT_TRUE(Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(button))) == ButtonColour(button, 2); }));
    EXPECT_TRUE(Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(button))) == ButtonColour(button, 1); }));
  };
  press(3);
  EXPECT_EQ(AreaDiffers(page(kHelp, 600, true, 40)), "");
  screen_.Drag(InMain(Point{90 + 455, 190}), InMain(Point{90 + 455, 190 + 300}));
  EXPECT_EQ(AreaDiffers(page(kHelp, 600, true, 240)), "");
  press(7);
  EXPECT_EQ(AreaDiffers(page(kAbout, 250, false, 0)), "");
  ClickMain({300, 200});
  EXPECT_TRUE(Soon([&] { return PixelOfMain({400, 380}) == kAreaColour; }));
  PointAt({300, 455});
  EXPECT_EQ(AreaDiffers(ListLook(2, true)), "");
  press(3);
  EXPECT_TRUE(Soon([&] { return PixelOfMain({400, 380}) == kHelp; }));
  press(3);
  PointAt({300, 455});
  EXPECT_EQ(AreaDiffers(ListLook(2, true)), "") << "the button does not close its page";
}

}  // namespace
}  // namespace orvanta::test
