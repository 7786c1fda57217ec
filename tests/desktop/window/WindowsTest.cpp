// Where the program's windows stand, what they look like and how they go with each other.

#include <algorithm>

#include "desktop/support/ShellOnScreen.h"
#include "startup/modFormShape.h"

namespace orvanta::test {
namespace {

class WindowsStory : public ShellOnScreen {
 protected:
  /// Expects the main window, and strips in their colours that no task bar tells of.
  void ExpectWindows(const Rect& main, const std::vector<Rect>& strips) const {
    EXPECT_EQ(screen_.PlaceOf(Main()), main);
    EXPECT_FALSE(screen_.HasState(Main(), "_NET_WM_STATE_SKIP_TASKBAR"));
    std::vector<Rect> places;
    for (const WindowId window : Windows()) {
      if (window == Main()) continue;
      places.push_back(screen_.PlaceOf(window));
      EXPECT_TRUE(screen_.HasState(window, "_NET_WM_STATE_SKIP_TASKBAR"));
    }
    ASSERT_EQ(places.size(), strips.size());
    for (const Rect& strip : strips) {
      SCOPED_TRACE(std::to_string(strip.left) + "," + std::to_string(strip.top));
      EXPECT_EQ(std::ranges::count(places, strip), 1);
      EXPECT_EQ(Differs(strip, strip.left == 0 ? kLeft : strip.top == 0 ? kUpper : kRight), "");
    }
  }
  void MinimiseAndRestore() const {
    const auto begin = Clock::now();
    ClickButton(kMinimise);
    EXPECT_TRUE(Shows(kMinimise, kPressed));
    EXPECT_TRUE(Soon([&] { return screen_.HasState(Main(), "_NET_WM_STATE_HIDDEN"); }));
    EXPECT_GT(SecondsSince(begin), 0.4);
    EXPECT_TRUE(Soon([&] { return Windows().size() == 1; })) << "a strip stays";
    EXPECT_EQ(Differs(whole_, kBehind), "");
    screen_.Activate(Main());
  }
};

// Faults: a window manager that moves or frames a window, a strip in the task bar, a main window that comes
// up without the activation; an outline that is off by a pixel, or one that is only painted and still takes
// the clicks; strips that rise alone or stay away; a second program.
TEST_F(WindowsStory, StripsAndMainWindowComeAndGoTogether) {
  Launch();
  Look picture({640, 478}, kStartPicture);
  picture.Fill({0, 448, 640, 30}, kUnder);
  ASSERT_EQ(Differs({192, 145, 640, 478}, picture), "");
  ASSERT_EQ(Windows().size(), 1U);
  const CursorLook arrow = screen_.Cursor();
  screen_.MoveMouse({500, 300});
  EXPECT_TRUE(Soon([&] { return screen_.Cursor() != arrow; })) << "no hourglass";
  const auto begin = Clock::now();
  AwaitMain();
  EXPECT_GT(SecondsSince(begin), 1.9) << "the start picture is gone in no time";
  EXPECT_TRUE(Soon([&] { return screen_.Cursor() == arrow; })) << "the hourglass stays";
  const Rect main{178, 136, 667, 496};
  const std::vector<Rect> strips{
      {0, 273, 178, 80}, {386, 0, 204, 136}, {845, 450, 179, 10}, {845, 505, 179, 10}, {845, 560, 179, 10}};
  ExpectWindows(main, strips);

  std::optional<OtherWindow> other(std::in_place, Rect{300, 60, 700, 480}, 0x808000U);
  ASSERT_EQ(screen_.Pixel({512, 300}), 0x808000U);
  screen_.Click({10, 300});  // on the left strip
  EXPECT_TRUE(MainIsActive());
  const auto tops = [&] {
    std::vector<int> found;
    for (const WindowId window : screen_.Windows())
      if (window != behind_.Id()) found.push_back(window == other->Id() ? -1 : screen_.PlaceOf(window).top);
    return found;
  };
  const std::vector<int> lifted{-1, 273, 0, 560, 505, 450, 136};
  EXPECT_TRUE(Soon([&] { return tops() == lifted; })) << testing::PrintToString(tops());
  EXPECT_EQ(screen_.Pixel({512, 300}), kArea);
  other.reset();

  Look mask(kMainSize, kBehind);
  const Region outline = BuildFormRegion();
  for (const Rect& part : outline.Rects()) mask.Fill(part, Look::kAnything);
  EXPECT_EQ(Differs(main, mask), "") << "the window reaches beyond its outline";
  EXPECT_EQ(main.width * main.height - screen_.See(main).Count(kBehind), 267024);
  ClickMain({0, 0});
  EXPECT_TRUE(Soon([&] { return screen_.Active() == behind_.Id(); })) << "the window takes the click";
  screen_.Activate(Main());
  EXPECT_TRUE(Becomes({300, 200}, kArea));
  ClickMain({300, 5});  // on the top tab
  EXPECT_EQ(screen_.Active(), Main());

  MinimiseAndRestore();
  EXPECT_TRUE(MainIsActive()) << "a strip stays away";
  ExpectWindows(main, strips);
  EXPECT_TRUE(Soon([&] { return screen_.Windows().back() == Main(); })) << "lifted last";
  const std::vector<WindowId> before = screen_.Windows();
  Program second({disc_.Folder() / "orvanta"});
  EXPECT_EQ(second.Ended(), 0);
  EXPECT_EQ(screen_.Windows(), before);
  Screen::Hand("key alt+F4");
  EXPECT_TRUE(Shows(kExit, kPressed));
  EXPECT_EQ(program_->Ended(), 0);
}

TEST_F(WindowsStory, StripsOf800x600) {
  Start();
  ExpectWindows(
      {66, 52, 667, 496},
      {{0, 189, 66, 80}, {274, 0, 204, 52}, {733, 366, 67, 10}, {733, 421, 67, 10}, {733, 476, 67, 10}});
}

// Faults: a window manager that pushes a window back onto a screen that it does not fit, and strips where
// there is no room for them.
TEST_F(WindowsStory, OnA640x480ScreenTheWindowIsPinnedWithoutStrips) {
  Start();
  ExpectWindows({0, -17, 667, 496}, {});
  MinimiseAndRestore();
  EXPECT_TRUE(MainIsActive(1));
  EXPECT_TRUE(Becomes({300, 455}, kMain));
  ExpectWindows({0, -17, 667, 496}, {});
}

}  // namespace
}  // namespace orvanta::test
