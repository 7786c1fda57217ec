// The view of an entry: what stands where, the buttons, the screenshots and the viewer.

#include <chrono>

#include "desktop/ScratchFolder.h"
#include "desktop/ShellOnScreen.h"
#include "startup/modFormShape.h"

namespace orvanta::test {
namespace {

class Detail : public ShellOnScreen {
 protected:
  using Clock = std::chrono::steady_clock;
  static constexpr Rect kNote{113, 184, 269, 177}, kRequirements{113, 392, 268, 18},
      kSystem{117, 409, 261, 34}, kFrame{388, 184, 161, 259};
  static constexpr Rgb kWhite = 0xFFFFFF, kDarkBlue = 0x000080;
  static constexpr Point kBackMark{515, 110};

  void Entry(const std::string& name, const std::string& key, const std::string& value) {
    disc_.Entry(name, {{key, value}, {"Note", "Opis & treść pozycji"}, {"System", "Komputer"}});
  }

  /// The whole window with an entry open, texts aside. Three looks stand for each button that is there.
  Look ExpectedView(const std::vector<std::pair<int, int>>& buttons) const {
    Look look(kMainSize.width, kMainSize.height, kMain);
    look.Fill(kNote, kWhite);
    look.Fill({113, 394, 268, 49}, 0xE0E0E0);
    look.Fill(kRequirements, 0x404040);
    look.Fill(kSystem, 0xE0E0E0);
    look.Fill({60, 80, 40, 30}, kProducer);
    look.Fill(kFrame, kWhite);
    look.Fill({395, 190, 123, 82}, kShot);
    look.Frame({395, 190, 123, 82}, 0x000000);
    for (const auto& [button, state] : buttons) look.Fill(ButtonBox(button), ButtonColour(button, state));
    for (const Rect& text : {Rect{113, 184, 200, 20}, Rect{113, 392, 240, 18}, Rect{117, 409, 100, 20},
                             Rect{210, 20, 200, 30}, Rect{100, 110, 200, 26}})
      look.Fill(text, Look::kAnything);
    return look;
  }

  std::string ViewDiffers(const Look& expected) const {
    Look outside(kMainSize.width, kMainSize.height, Look::kAnything);
    const Region outline = BuildFormRegion();
    for (const Rect& part : outline.Rects())
      for (int x = part.left; x < part.Right(); ++x)
        outside.Fill({x, part.top, 1, 1}, expected.At(x, part.top));
    return Differs(InMain(Rect{0, 0, kMainSize.width, kMainSize.height}), outside);
  }

  int Ink(const Rect& area, Rgb colour) const {
    return screen_.See(InMain(area)).Count({0, 0, area.width, area.height}, colour);
  }

  void ExpectTexts() const {
    EXPECT_GT(Ink(kNote, 0x000000), 20) << "the description";
    EXPECT_GT(Ink(kRequirements, kWhite), 20) << "the fixed heading";
    EXPECT_GT(Ink(kSystem, kDarkBlue), 20) << "the requirements";
    EXPECT_GT(Ink({100, 110, 391, 26}, 0xFF0000), 10) << "the entry's name";
  }

  void ExpectLook(int button, int look) const {
    EXPECT_TRUE(Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(button))) == ButtonColour(button, look); }))
        << "button " << button << " look " << look;
  }
  void Open(int index) {
    Choose(index, true);
    ASSERT_TRUE(Soon([&] { return PixelOfMain({380, 300}) == kWhite; })) << "the entry does not open";
    PointAt({300, 455});
  }
  void BackToTheList() {
    ClickMain(kBackMark);
    ASSERT_TRUE(Soon([&] { return PixelOfMain({380, 300}) == kArea; }));
    PointAt({300, 455});
  }
};

// Faults: a control of the view off its place or in another colour, a button of another kind of entry, a view
// that the next one shines through.
TEST_F(Detail, EachKindOfEntryHasItsView) {
  disc_.Menu("MAINMENU", {"Program", "Muzyka", "Film"});
  Entry("Program", "Execute", "%:\\brak.exe");
  Entry("Muzyka", "PlayAs", "Music");
  Entry("Film", "PlayAs", "MOVIE");
  Start();
  using Buttons = std::vector<std::pair<int, int>>;
  const Buttons always{{0, 0}, {1, 0}, {3, 0}, {7, 0}, {8, 0}};
  const auto with = [&](const Buttons& more) {
    Buttons all = always;
    all.insert(all.end(), more.begin(), more.end());
    return ExpectedView(all);
  };

  Open(0);
  EXPECT_EQ(ViewDiffers(with({{4, 0}})), "");
  ExpectTexts();
  BackToTheList();

  Open(1);
  Look music = with({{4, 0}, {5, 0}, {6, 2}});
  music.Fill({120, 455, 3, 9}, 0xFF0000);
  music.Frame({120, 455, 3, 9}, 0xC00000);
  EXPECT_EQ(ViewDiffers(music), "");
  ExpectTexts();
  BackToTheList();

  Open(2);
  EXPECT_EQ(ViewDiffers(with({{9, 0}})), "");
  ExpectTexts();
}

// Faults: a sensitive area that is off by a pixel, a look that is not painted before the program blocks.
class Looks : public Detail {
 protected:
  void ExpectEveryButtonsLooks();
};

void Looks::ExpectEveryButtonsLooks() {
  disc_.Menu("MAINMENU", {"Muzyka", "Film"});
  Entry("Muzyka", "PlayAs", "MUSIC");
  Entry("Film", "PlayAs", "MOVIE");
  disc_.Set("Film", "Parameters", "%:\\brak.avi");
  Start();
  const auto hover = [&](int button) {
    const Rect box = ButtonBox(button);
    Look over(box.width, box.height, ButtonColour(button, 1));
    PointAt({box.left + 1, box.top + 1});
    EXPECT_EQ(Differs(InMain(box), over), "") << "button " << button;
    // The left column of pixels does not belong to it.
    PointAt({box.left, box.top + 5});
    ExpectLook(button, 0);
    PointAt({box.left + box.width - 1, box.top + box.height - 1});
    ExpectLook(button, 1);
  };
  for (const int button : {0, 1, 3, 7, 8}) hover(button);
  for (const int button : {1, 2}) {
    hover(button);
    ClickMain(MiddleOf(ButtonBox(button)));
    ExpectLook(button, 2);
    ExpectLook(3 - button, 1);
  }

  Open(0);
  for (const int button : {4, 5}) hover(button);
  PointAt(MiddleOf(ButtonBox(6)));
  screen_.Rest();
  screen_.Rest();
  ExpectLook(6, 2);  // latched: the cursor changes nothing
  BackToTheList();
  Open(1);
  hover(9);
}

TEST_F(Looks, OfEveryButton) { ExpectEveryButtonsLooks(); }

TEST_F(Looks, OfEveryButtonOn640x480) { ExpectEveryButtonsLooks(); }

// Faults: pictures that do not move with the knob, a viewer that scales, hides or closes by its caption.
TEST_F(Detail, ScreenshotsAreScrolledAndOpened) {
  disc_.Menu("MAINMENU", {"Program"});
  Entry("Program", "Execute", "%:\\brak.exe");
  const std::vector<Rgb> colours{0xE02020, 0x20E020, 0x2020E0, 0xE0E020, 0x20E0E0};
  for (std::size_t i = 0; i < colours.size(); ++i) {
    const std::string number = std::to_string(i + 1);
    disc_.Picture("shot" + number + ".gif", 300 + static_cast<int>(i), 200, colours[i]);
    disc_.Set("Program", "Shot" + number, "shot" + number + ".gif");
  }
  Start();
  Open(0);
  // Five pictures end at 6 + 5 * 82 + 4 * 3 = 428: 175 pixels to scroll over 180 of the knob.
  const auto strip = [&](int offset, int knob) {
    Look look(kFrame.width, kFrame.height, kWhite);
    for (std::size_t i = 0; i < colours.size(); ++i) {
      const Rect shot{7, 6 + 85 * static_cast<int>(i) - offset, 123, 82};
      look.Fill(shot, colours[i]);
      look.Frame(shot, 0);
    }
    look.Fill({138, 10, 20, 249}, kBar);
    look.Fill({140, knob, 16, 20}, kKnob);
    return look;
  };
  const Rect frame = InMain(kFrame);
  EXPECT_EQ(Differs(frame, strip(0, 20)), "");
  const Point knob = InMain(Point{388 + 148, 184 + 30});
  screen_.Drag(knob, {knob.x, knob.y + 500});
  EXPECT_EQ(Differs(frame, strip(175, 200)), "");

  // The fifth picture, whole at 171: 304 by 200 pixels above a line of 16, in the middle of the screen.
  screen_.Click(InMain(Point{450, 184 + 200}));
  const Rect viewer{360, 276, 304, 216};
  Look whole(viewer.width, viewer.height, colours[4]);
  whole.Fill({0, 200, 304, 16}, Look::kAnything);
  EXPECT_EQ(Differs(viewer, whole), "");
  EXPECT_GT(screen_.See(viewer).Count({0, 200, 304, 16}, 0xFFFF80), 20) << "the caption";
  EXPECT_GT(screen_.See(viewer).Count({0, 200, 304, 16}, 0x000000), 2000);
  const WindowId window = Windows().back();
  EXPECT_EQ(screen_.PlaceOf(window), viewer);
  EXPECT_EQ(screen_.OwnerOf(window), Main());
  EXPECT_EQ(screen_.Active(), window);

  screen_.Click({viewer.left + 250, viewer.top + 208});  // its caption
  ClickMain(MiddleOf(ButtonBox(0)));                     // the main window takes no clicks meanwhile
  screen_.Rest();
  EXPECT_TRUE(program_->Runs());
  EXPECT_TRUE(screen_.IsMapped(window));
  EXPECT_EQ(Differs(viewer, whole), "") << "the viewer fell behind the main window";
  screen_.Click({viewer.left + 100, viewer.top + 100});
  EXPECT_TRUE(Soon([&] { return Windows().size() == 6 && screen_.Active() == Main(); }));
  EXPECT_EQ(Differs(frame, strip(175, 200)), "");
  Leave();
}

// Faults: an hourglass that burns the processor, stays for ever or is gone before the started program's
// window is there.
TEST_F(Detail, TheHourglassStandsUntilAnotherWindowIsActive) {
  disc_.Menu("MAINMENU", {"Program"});
  Entry("Program", "Execute", "%:\\gra.sh");
  disc_.File("gra.sh", "#!/bin/sh\nprintf '%s|' \"$@\" >\"$(dirname \"$0\")/argumenty\"\n");
  std::filesystem::permissions(disc_.Folder() / "gra.sh", std::filesystem::perms::owner_all);
  disc_.Set("Program", "Parameters", "\"żółta łódź\" /x dwa");
  Start();
  Open(0);
  PointAt({300, 455});
  screen_.Rest();
  screen_.Rest();
  const CursorLook arrow = screen_.Cursor();
  PointAt(MiddleOf(ButtonBox(4)));
  ExpectLook(4, 1);
  ClickMain(MiddleOf(ButtonBox(4)));
  ExpectLook(4, 2);
  const auto arguments = [&] { return ScratchFolder::contentOf(disc_.Folder() / "argumenty"); };
  EXPECT_TRUE(Soon([&] { return arguments() == "żółta łódź|/x|dwa|"; })) << arguments();
  PointAt({300, 455});
  EXPECT_TRUE(Soon([&] { return screen_.Cursor().argb != arrow.argb; }));
  const double before = program_->Processor();
  const auto begin = Clock::now();
  EXPECT_FALSE(Soon([&] { return screen_.Cursor().argb == arrow.argb; })) << "nobody has a window yet";
  const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
  EXPECT_LT((program_->Processor() - before) / seconds, 0.02);

  const OtherWindow game({0, 0, 200, 100}, 0x808000);
  EXPECT_TRUE(Soon([&] { return screen_.Cursor().argb == arrow.argb; }));
}

}  // namespace
}  // namespace orvanta::test
