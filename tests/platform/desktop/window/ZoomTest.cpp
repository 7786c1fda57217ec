// How many screen pixels one program pixel becomes.

#include <gtest/gtest.h>

#include "platform/desktop/window/Zoom.h"

namespace orvanta {
namespace {

// Faults: a factor that leaves too little room; a desktop's double resolution that is ignored.
TEST(Zoom, IsTheLargestThatLeavesRoom) {
  constexpr struct {
    Size screen;
    double dotsPerInch;
    int factor;
  } kScreens[] = {
      {{640, 480}, 96, 1},    {{1366, 768}, 96, 1},     {{1366, 768}, 192, 1},  {{1920, 1080}, 96, 1},
      {{1920, 1080}, 192, 1}, {{2047, 1536}, 96, 1},    {{2048, 1536}, 96, 2},  {{2560, 1440}, 96, 1},
      {{2560, 1440}, 143, 1}, {{2560, 1440}, 144, 2},   {{2560, 1440}, 192, 2}, {{3840, 2160}, 96, 2},
      {{3840, 2160}, 192, 2}, {{3840, 2160}, 288, 3},   {{3840, 2160}, 384, 2}, {{7680, 4320}, 96, 5},
      {{3840, 2160}, 0, 2},   {{3840, 2160}, 1e300, 2}, {{0, 0}, 96, 1}};
  for (const auto& [screen, dotsPerInch, factor] : kScreens)
    EXPECT_EQ(ZoomFor(screen, dotsPerInch), factor) << screen.width << " at " << dotsPerInch;
}

// Fault: a click on the first or last screen pixel of a button that misses it.
TEST(Zoom, EveryScreenPixelBelongsToTheProgramPixelThatCoversIt) {
  for (const Size shown : {Size{30, 20}, {60, 40}, {90, 60}, {91, 61}, {62, 41}}) {
    const WindowZoom zoom{{30, 20}, shown};
    EXPECT_EQ(zoom.ToScreen({0, 0, 30, 20}), (Rect{0, 0, shown.width, shown.height}));
    EXPECT_EQ(zoom.ToScreen({1, 1, 2, 2}).width, 2 * (shown.width / 30));
    for (int x = -3; x < 33; ++x) {
      const Rect square = zoom.ToScreen({x, x, 1, 1});
      EXPECT_EQ(zoom.ToProgram({square.left, square.top}), (Point{x, x}));
      EXPECT_EQ(zoom.ToProgram({square.Right() - 1, square.Bottom() - 1}), (Point{x, x}));
      EXPECT_EQ(zoom.Covering(square), (Rect{x, x, 1, 1}));
    }
  }
  EXPECT_EQ((WindowZoom{{}, {}}.ToProgram({7, -7})), (Point{7, -7})) << "for a window without an area";
}

// Faults: scaling the position of a second screen; a strip that ends before the screen does.
TEST(Zoom, PlacesCountFromTheScreenAndReachItsEdge) {
  const ScreenZoom zoom{{1920, 100, 3841, 2163}, 2};
  EXPECT_EQ(zoom.ProgramSize(), (Size{1920, 1081}));
  EXPECT_EQ(zoom.ToProgram({1920 + 21, 100 - 1}), (Point{10, -1}));
  const Rect strip{1300, 400, 620, 10}, inside{1300, 400, 619, 10};
  EXPECT_EQ(zoom.ToScreen(strip), (Rect{4520, 900, 1240, 20}));
  EXPECT_EQ(zoom.ToScreenAndEdge(strip), (Rect{4520, 900, 1241, 20}));
  EXPECT_EQ(zoom.ToScreenAndEdge(inside), zoom.ToScreen(inside));
  EXPECT_EQ(zoom.ToScreenAndEdge({0, 0, 1920, 1081}), zoom.screen) << "a film on the whole screen";
}

}  // namespace
}  // namespace orvanta
