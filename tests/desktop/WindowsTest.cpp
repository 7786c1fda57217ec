// Where the program's windows stand, what they look like and how they go with each other.

#include <algorithm>
#include <chrono>

#include "desktop/ShellOnScreen.h"
#include "startup/modFormShape.h"

namespace orvanta::test {
namespace {

class Windows : public ShellOnScreen {
 protected:
  using Clock = std::chrono::steady_clock;

  void ExpectPlaces(const Rect& main, const std::vector<Rect>& strips) const {
    std::vector<Rect> places;
    for (const WindowId window : ShellOnScreen::Windows())
      if (window != Main() && screen_.IsMapped(window)) places.push_back(screen_.PlaceOf(window));
    EXPECT_EQ(screen_.PlaceOf(Main()), main);
    ASSERT_EQ(places.size(), strips.size());
    for (const Rect& strip : strips)
      EXPECT_NE(std::find(places.begin(), places.end(), strip), places.end())
          << "no strip at " << strip.left << ',' << strip.top << ' ' << strip.width << 'x' << strip.height;
  }

  void ExpectColour(const Rect& area, Rgb colour) const {
    EXPECT_EQ(Differs(area, Look(area.width, area.height, colour)), "");
  }

  std::vector<WindowId> Strips() const {
    std::vector<WindowId> strips = ShellOnScreen::Windows();
    std::erase(strips, Main());
    return strips;
  }

  static constexpr Rect kStripsBig[] = {
      {0, 273, 178, 80}, {386, 0, 204, 136}, {845, 450, 179, 10}, {845, 505, 179, 10}, {845, 560, 179, 10}};
};

// Faults: a window manager that moves or frames a window, a strip in the task bar, a gap in which nothing is
// on the screen, a main window that comes up without the activation.
TEST_F(Windows, TheStartScreenGivesWayToTheMainWindowAndItsStrips) {
  Launch();
  const Rect start{192, 145, 640, 478};
  Look picture(640, 478, kStart);
  picture.Fill({0, 448, 640, 30}, kUnder);
  ASSERT_EQ(Differs(start, picture), "");
  ASSERT_EQ(ShellOnScreen::Windows().size(), 1U);
  EXPECT_TRUE(screen_.HasState(ShellOnScreen::Windows().front(), "_NET_WM_STATE_SKIP_TASKBAR"));
  const CursorLook arrow = screen_.Cursor();
  screen_.MoveMouse({500, 300});
  EXPECT_TRUE(Soon([&] { return screen_.Cursor().argb != arrow.argb; })) << "no hourglass";

  Clock::duration dark{};
  auto lit = Clock::now();
  const auto begin = lit;
  EXPECT_TRUE(Soon([&] {
    const Rgb middle = screen_.Pixel({512, 300});
    if (middle != kBehind) lit = Clock::now();
    dark = std::max(dark, Clock::now() - lit);
    return middle == kArea;
  }));
  EXPECT_GT(Clock::now() - begin, std::chrono::milliseconds(1900)) << "the main window is built in no time";
  EXPECT_LT(dark, std::chrono::milliseconds(400));
  AwaitMain();
  ExpectPlaces({178, 136, 667, 496}, {std::begin(kStripsBig), std::end(kStripsBig)});
  EXPECT_TRUE(Soon([&] { return screen_.Cursor().argb == arrow.argb; })) << "the hourglass stays";

  for (const WindowId strip : Strips()) EXPECT_TRUE(screen_.HasState(strip, "_NET_WM_STATE_SKIP_TASKBAR"));
  EXPECT_FALSE(screen_.HasState(Main(), "_NET_WM_STATE_SKIP_TASKBAR"));
  for (const Rect& strip : kStripsBig)
    ExpectColour(strip, strip.left == 0 ? kLeft : strip.top == 0 ? kUpper : kRight);
  Leave();
}

// Faults: an outline that is off by a pixel, or one that is only painted and still takes the clicks.
TEST_F(Windows, TheOutlineIsTheWindow) {
  Start();
  Look mask(kMainSize.width, kMainSize.height, kBehind);
  const Region region = BuildFormRegion();
  for (const Rect& part : region.Rects()) mask.Fill(part, Look::kAnything);
  const Rect place = InMain({0, 0, kMainSize.width, kMainSize.height});
  EXPECT_EQ(Differs(place, mask), "") << "the window reaches beyond its outline";
  EXPECT_EQ(kMainSize.width * kMainSize.height -
                screen_.See(place).Count({0, 0, kMainSize.width, kMainSize.height}, kBehind),
            267024);

  for (const Point corner : {Point{0, 0}, Point{666, 495}}) {
    std::vector<Point> clicks = behind_.Clicks();
    ClickMain(corner);
    EXPECT_TRUE(Soon([&] { return !(clicks = behind_.Clicks()).empty(); }));
    EXPECT_EQ(clicks, std::vector<Point>{InMain(corner)});
    // The click has lifted the window behind.
    screen_.Activate(Main());
    EXPECT_TRUE(Soon([&] { return PixelOfMain({300, 200}) == kArea; }));
  }
  ClickMain({300, 5});  // on the top tab
  ClickMain(MiddleOf(ButtonBox(0)));
  EXPECT_EQ(program_->Ended(), 0);
  EXPECT_TRUE(behind_.Clicks().empty());
}

// Faults: strips that rise alone or not at all, a main window that stays below or inactive.
TEST_F(Windows, AClickOnAStripLiftsTheWholeGroup) {
  Start();
  OtherWindow other({300, 60, 700, 480}, 0x808000);
  ASSERT_EQ(screen_.Active(), other.Id());
  ASSERT_EQ(screen_.Pixel({512, 300}), 0x808000U);
  screen_.Click({10, 300});  // on the left strip
  EXPECT_TRUE(Soon([&] { return screen_.Active() == Main(); }));
  const auto tops = [&] {
    std::vector<int> found;
    for (const WindowId window : screen_.Windows())
      if (window != behind_.Id()) found.push_back(window == other.Id() ? -1 : screen_.PlaceOf(window).top);
    return found;
  };
  const std::vector<int> lifted{-1, 273, 0, 560, 505, 450, 136};
  EXPECT_TRUE(Soon([&] { return tops() == lifted; })) << testing::PrintToString(tops());
  EXPECT_EQ(screen_.Pixel({512, 300}), kArea);
}

// Faults: strips that stay or do not come back, come back elsewhere or in the task bar; a pressed look that
// is painted only after the pause.
TEST_F(Windows, MinimisingTakesTheStripsAlongAndRestoringBringsThemBack) {
  Start();
  for (int round = 0; round < 2; ++round) {
    SCOPED_TRACE(round);
    PointAt(MiddleOf(ButtonBox(8)));
    EXPECT_TRUE(Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(8))) == ButtonColour(8, 1); }));
    const auto begin = Clock::now();
    ClickMain(MiddleOf(ButtonBox(8)));
    EXPECT_TRUE(Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(8))) == ButtonColour(8, 2); }));
    EXPECT_TRUE(Soon([&] { return screen_.HasState(Main(), "_NET_WM_STATE_HIDDEN"); }));
    EXPECT_GT(Clock::now() - begin, std::chrono::milliseconds(400));
    EXPECT_TRUE(Soon([&] { return ShellOnScreen::Windows().size() == 1; })) << "a strip stays";
    const Size whole = screen_.Extent();
    ExpectColour({0, 0, whole.width, whole.height}, kBehind);

    screen_.Activate(Main());
    EXPECT_TRUE(Soon([&] { return ShellOnScreen::Windows().size() == 6; })) << "a strip stays away";
    EXPECT_TRUE(Soon([&] { return screen_.Active() == Main(); }));
    for (const Rect& strip : kStripsBig)
      ExpectColour(strip, strip.left == 0 ? kLeft : strip.top == 0 ? kUpper : kRight);
    ExpectPlaces({178, 136, 667, 496}, {std::begin(kStripsBig), std::end(kStripsBig)});
    for (const WindowId strip : Strips()) EXPECT_TRUE(screen_.HasState(strip, "_NET_WM_STATE_SKIP_TASKBAR"));
    EXPECT_EQ(PixelOfMain({300, 200}), kArea);
    PointAt({300, 455});
  }
  Leave();
}

// The taskbar's own way to close and minimise a window.
TEST_F(Windows, ASecondStartEndsSilentlyAndTheWindowManagersCloseLeavesInOrder) {
  Start();
  const std::size_t before = screen_.Windows().size();
  Program second((disc_.Folder() / "orvanta").string(), "/");
  EXPECT_EQ(second.Ended(), 0);
  EXPECT_EQ(second.Printed(), "");
  EXPECT_EQ(screen_.Windows().size(), before);
  screen_.Close(Main());
  EXPECT_TRUE(Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(0))) == ButtonColour(0, 2); }));
  EXPECT_EQ(program_->Ended(), 0);
}

// Fault: the exit button looks as before while the program already waits to end.
TEST_F(Windows, LeavingShowsThePressedButtonFor200Milliseconds) {
  Start();
  PointAt(MiddleOf(ButtonBox(0)));
  EXPECT_TRUE(Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(0))) == ButtonColour(0, 1); }));
  ClickMain(MiddleOf(ButtonBox(0)));
  EXPECT_TRUE(Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(0))) == ButtonColour(0, 2); }));
  const auto begin = Clock::now();
  EXPECT_TRUE(Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(0))) == kBehind; }));
  EXPECT_GT(Clock::now() - begin, std::chrono::milliseconds(180));
  EXPECT_EQ(program_->Ended(), 0);
}

TEST_F(Windows, StripsOf800x600) {
  Start();
  ExpectPlaces(
      {66, 52, 667, 496},
      {{0, 189, 66, 80}, {274, 0, 204, 52}, {733, 366, 67, 10}, {733, 421, 67, 10}, {733, 476, 67, 10}});
  ExpectColour({0, 189, 66, 80}, kLeft);
  ExpectColour({274, 0, 204, 52}, kUpper);
  ExpectColour({733, 366, 67, 10}, kRight);
}

// Faults: a window manager that pushes a window back onto a screen that it does not fit, and strips where
// there is no room for them.
TEST_F(Windows, OnA640x480ScreenTheWindowIsPinnedWithoutStrips) {
  Start();
  const auto pinned = [&] { ExpectPlaces({0, -17, 667, 496}, {}); };
  pinned();
  PointAt(MiddleOf(ButtonBox(8)));
  EXPECT_TRUE(Soon([&] { return PixelOfMain(MiddleOf(ButtonBox(8))) == ButtonColour(8, 1); }));
  ClickMain(MiddleOf(ButtonBox(8)));
  EXPECT_TRUE(Soon([&] { return screen_.HasState(Main(), "_NET_WM_STATE_HIDDEN"); }));
  screen_.Activate(Main());
  EXPECT_TRUE(Soon([&] { return screen_.Active() == Main() && PixelOfMain({300, 455}) == kMain; }));
  pinned();
  Leave();
}

}  // namespace
}  // namespace orvanta::test
