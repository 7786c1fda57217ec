// The view of an entry: what stands where, the buttons, the screenshots and the viewer, the started program.

#include "desktop/support/ShellOnScreen.h"
#include "startup/modFormShape.h"

namespace orvanta::test {
namespace {

class EntryStory : public ShellOnScreen {
 protected:
  static constexpr Rect kNote{113, 184, 269, 177}, kHeading{113, 392, 268, 18}, kSystem{117, 409, 261, 34},
      kFrame{388, 184, 161, 259};
  static constexpr Rgb kShots[] = {0xE02020, 0x20E020, 0x2020E0, 0xE0E020, 0x20E0E0};
  using Buttons = std::vector<std::pair<int, int>>;

  EntryStory() {
    disc_.Menu("MAINMENU", {"Program", "Muzyka", "Film"});
    const std::pair<std::string, std::string> note{"Note", "Opis & treść pozycji"},
        system{"System", "Komputer"};
    disc_.Entry("Program", {{"Execute", "%:\\gra.sh"}, note, system});
    disc_.Entry("Muzyka", {{"PlayAs", "MUSIC"}, note, system});
    disc_.Entry("Film", {{"PlayAs", "MOVIE"}, {"Parameters", "%:\\brak.avi"}, note, system});
    for (int i = 0; i < 5; ++i) {
      const std::string number = std::to_string(i + 1);
      disc_.Picture("shot" + number + ".gif", 300 + i, 200, kShots[i]);
      disc_.Set("Program", "Shot" + number, "shot" + number + ".gif");
    }
  }

  /// The strip of the five screenshots of the program's entry.
  static Look Strip(int offset, int knob) {
    Look look({kFrame.width, kFrame.height}, kWhite);
    for (int i = 0; i < 5; ++i) {
      const Rect shot{7, 6 + 85 * i - offset, 123, 82};
      look.Fill(shot, kShots[i]);
      look.Frame(shot, 0);
    }
    look.Fill({138, 10, 20, 249}, kBar);
    look.Fill({140, knob, 16, 20}, kKnob);
    return look;
  }
  /// The whole window with an entry open, texts aside, and the buttons of its kind beside those of the
  /// window.
  Look View(Buttons buttons) const {
    Look look(kMainSize, kMain);
    look.Fill(kNote, kWhite);
    look.Fill({113, 394, 268, 49}, 0xE0E0E0);
    look.Fill(kHeading, 0x404040);
    look.Fill(kSystem, 0xE0E0E0);
    look.Fill({60, 80, 40, 30}, kProducer);
    look.Fill(kFrame, kWhite);
    look.Fill({395, 190, 123, 82}, kShot);
    look.Frame({395, 190, 123, 82}, 0x000000);
    for (const int button : {kExit, kMute, kHelp, kAbout, kMinimise}) buttons.emplace_back(button, kNormal);
    for (const auto& [button, state] : buttons) look.Fill(ButtonBox(button), ColourOf(button, state));
    for (const Rect& text : {Rect{113, 184, 200, 20}, Rect{113, 392, 240, 18}, Rect{117, 409, 100, 20},
                             Rect{210, 20, 200, 30}, Rect{100, 110, 200, 26}})
      look.Fill(text, Look::kAnything);
    return look;
  }
  void ExpectView(Look whole) const {
    Look visible(kMainSize, Look::kAnything);
    const Region outline = BuildFormRegion();
    for (int y = 0; y < kMainSize.height; ++y)
      for (int x = 0; x < kMainSize.width; ++x)
        if (outline.Contains({x, y}) && whole_.Contains(InMain(Point{x, y})))
          visible.At(x, y) = whole.At(x, y);
    EXPECT_EQ(Differs(InMain(Rect{0, 0, kMainSize.width, kMainSize.height}), visible), "");
    EXPECT_GT(Ink(kNote, 0x000000), 20) << "the description";
    EXPECT_GT(Ink(kHeading, kWhite), 20) << "the fixed heading";
    EXPECT_GT(Ink(kSystem, 0x000080), 20) << "the requirements";
    EXPECT_GT(Ink({100, 110, 391, 26}, 0xFF0000), 10) << "the entry's name";
  }
  void Open(int line) const {
    Choose(line);
    EXPECT_TRUE(Becomes({380, 300}, kWhite)) << "the entry does not open";
    PointAside();
  }
  /// All of a button but its left column of pixels is sensitive.
  void ExpectSensitive(int button) const {
    const Rect box = ButtonBox(button);
    PointAt({box.left + 1, box.top + 1});
    EXPECT_EQ(Differs(InMain(box), ColourOf(button, kOver)), "") << "button " << button;
    PointAt({box.left, box.top + 5});
    EXPECT_TRUE(Shows(button, kNormal)) << button;
    PointAt({box.left + box.width - 1, box.top + box.height - 1});
    EXPECT_TRUE(Shows(button, kOver)) << button;
  }
  void ExpectScrolledAndOpened() const;
  void Walk();
};

void EntryStory::ExpectScrolledAndOpened() const {
  // Five pictures end at 6 + 5 * 82 + 4 * 3 = 428: 175 pixels to scroll over 180 of the knob.
  const Rect frame = InMain(kFrame);
  EXPECT_EQ(Differs(frame, Strip(0, 20)), "");
  const Point knob = InMain(Point{388 + 148, 184 + 30});
  screen_.MoveMouse(knob);
  screen_.Press();
  screen_.Rest();
  screen_.MoveMouse({knob.x, knob.y + 500});
  EXPECT_EQ(Differs(frame, Strip(175, 200)), "");
  screen_.Release();

  // The fifth picture, whole at 171: 304 by 200 pixels above a line of 16, in the middle of the screen.
  screen_.Click(InMain(Point{450, 184 + 200}));
  const Rect viewer{(whole_.width - 304) / 2, (whole_.height - 216) / 2, 304, 216};
  Look picture({304, 216}, kShots[4]);
  picture.Fill({0, 200, 304, 16}, Look::kAnything);
  EXPECT_EQ(Differs(viewer, picture), "");
  EXPECT_EQ(screen_.PlaceOf(screen_.Active()), viewer);
  EXPECT_GT(screen_.See(viewer).Count(0xFFFF80), 20) << "its name";
  screen_.Click({viewer.left + 250, viewer.top + 208});  // its caption
  ClickButton(kExit);                                    // the main window takes no clicks meanwhile
  screen_.MoveMouse(MiddleOf(viewer));
  EXPECT_TRUE(Shows(kExit, kNormal));
  EXPECT_EQ(Differs(viewer, picture), "") << "the viewer is gone, or fell behind the main window";
  screen_.Click({viewer.left + 100, viewer.top + 100});
  EXPECT_EQ(Differs(frame, Strip(175, 200)), "");
}

// Faults: a control of the view off its place or in another colour, a button of another kind of entry; a
// sensitive area that is off by a pixel, a look that is not painted before the program blocks; pictures that
// do not move with the knob, a viewer that scales, hides or closes by its caption.
void EntryStory::Walk() {
  Start();
  for (const int button : {kExit, kMute, kHelp, kAbout, kMinimise}) ExpectSensitive(button);
  for (const int button : {kMute, kUnmute}) {
    // Two quick clicks on one place of the switch would be a double click, which counts once.
    const Rect box = ButtonBox(button);
    ClickMain({box.left + (button == kMute ? 8 : 28), box.top + 12});
    EXPECT_TRUE(Shows(button, kPressed));
    EXPECT_TRUE(Shows(kMute + kUnmute - button, kOver));
  }
  Open(0);
  Look program = View({{kPlay, kNormal}});
  program.Fill(kFrame, Look::kAnything);
  ExpectView(program);
  ExpectScrolledAndOpened();
  GoBack();

  Open(1);
  Look music = View({{kPlay, kNormal}, {kPause, kNormal}, {kStop, kPressed}});
  music.Fill({120, 455, 3, 9}, 0xFF0000);
  music.Frame({120, 455, 3, 9}, 0xC00000);
  ExpectView(music);
  for (const int button : {kPlay, kPause}) ExpectSensitive(button);
  GoBack();

  Open(2);
  ExpectView(View({{kShow, kNormal}}));
  ExpectSensitive(kShow);
}

TEST_F(EntryStory, EachKindIsSeenAndTouched) { Walk(); }

TEST_F(EntryStory, EachKindIsSeenAndTouchedOn640x480) { Walk(); }

// Faults: an hourglass that burns the processor, stays for ever or is gone before the started program's
// window is there; a failure that nobody is told of.
TEST_F(EntryStory, TheHourglassStandsUntilAnotherWindowIsActive) {
  disc_.Set("Program", "Parameters", "\"żółta łódź\" /x dwa");
  Start();
  Open(0);
  ClickButton(kPlay);
  EXPECT_TRUE(Soon([&] { return screen_.TitleOf(screen_.Active()) == "Orvanta Shell"; }))
      << "nothing tells that there is no such program";
  Screen::Hand("key Return");
  EXPECT_TRUE(MainIsActive());

  disc_.File("gra.sh", "#!/bin/sh\nprintf '%s|' \"$@\" >\"$(dirname \"$0\")/argumenty\"\n");
  Allow(disc_.Folder() / "gra.sh", 0755);
  PointAside();
  screen_.Rest();
  screen_.Rest();
  const CursorLook arrow = screen_.Cursor();
  const auto isArrow = [&] { return screen_.Cursor() == arrow; };
  // A press before the first tick over the button would have its look taken back by that tick.
  PointAt(MiddleOf(ButtonBox(kPlay)));
  EXPECT_TRUE(Shows(kPlay, kOver));
  ClickButton(kPlay);
  EXPECT_TRUE(Shows(kPlay, kPressed));
  const auto arguments = [&] { return ContentOf(disc_.Folder() / "argumenty"); };
  EXPECT_TRUE(Soon([&] { return arguments() == "żółta łódź|/x|dwa|"; })) << arguments();
  PointAside();
  EXPECT_TRUE(Soon([&] { return !isArrow(); }));
  const double before = program_->Processor();
  const auto begin = Clock::now();
  EXPECT_FALSE(Soon(isArrow, std::chrono::seconds(5))) << "nobody has a window yet";
  EXPECT_LT((program_->Processor() - before) / SecondsSince(begin), 0.02);
  const OtherWindow game({0, 0, 200, 100}, 0x808000);
  EXPECT_TRUE(Soon(isArrow));
}

}  // namespace
}  // namespace orvanta::test
