#include "desktop/ShellOnScreen.h"

#include <array>
#include <chrono>
#include <thread>

#include "desktop/ForkedShell.h"

namespace orvanta::test {

namespace {

using namespace std::chrono_literals;

struct BarButton {
  const char* base;
  Point place;
};
constexpr std::array<BarButton, 10> kBarButtons{{{"ext", {560, 70}},
                                                 {"snd1", {480, 70}},
                                                 {"snd2", {480, 70}},
                                                 {"hlp", {400, 100}},
                                                 {"start", {120, 465}},
                                                 {"pauza", {170, 465}},
                                                 {"stop", {220, 465}},
                                                 {"info", {440, 100}},
                                                 {"min", {520, 70}},
                                                 {"pokaz", {300, 465}}}};
constexpr Size kButtonSize{36, 24};

constexpr const char* kTitle = "Płyta próbna";

Rect WholeScreen(const Screen& screen) {
  const Size size = screen.Extent();
  return {0, 0, size.width, size.height};
}

}  // namespace

bool Soon(const std::function<bool()>& happened) {
  for (const auto deadline = std::chrono::steady_clock::now() + 5s; !happened();
       std::this_thread::sleep_for(5ms))
    if (std::chrono::steady_clock::now() > deadline) return false;
  return true;
}

ShellOnScreen::ShellOnScreen() : behind_(WholeScreen(screen_), kBehind) {
  disc_.Picture("main.gif", kMainSize.width, kMainSize.height, kMain);
  disc_.Picture("tlo.gif", 472, 309, kArea);
  disc_.Picture("kreska.gif", 472, 33, kLineStrip);
  disc_.Picture("startpic.gif", 64, 45, kStart);
  disc_.Picture("under.gif", 640, 30, kUnder);
  disc_.Picture("left.gif", 10, 80, kLeft);
  disc_.Picture("upper.gif", 204, 6, kUpper);
  for (const std::string right : {"right1.gif", "right2.gif", "right3.gif"})
    disc_.Picture(right, 6, 10, kRight);
  disc_.Picture("bar.gif", 20, 270, kBar);
  disc_.Picture("knob.gif", 16, 20, kKnob);
  disc_.Picture("help.gif", 400, 600, kHelp);
  disc_.Picture("about.gif", 400, 250, kAbout);
  disc_.Picture("producer.gif", 40, 30, kProducer);
  disc_.Picture("shot.gif", 320, 240, kShot);
  for (int i = 0; i < 10; ++i) {
    for (int look = 0; look < 3; ++look)
      disc_.Picture(kBarButtons.at(static_cast<std::size_t>(i)).base + std::to_string(look) + ".gif",
                    kButtonSize.width, kButtonSize.height, ButtonColour(i, look));
  }
  // The top edge of the outline would cut these two.
  disc_.Set("GLOBAL", "HlpY", "100");
  disc_.Set("GLOBAL", "InfoY", "100");
  disc_.Set("HEADLINE", "Left", "210");
  for (const char* voice : {"Start", "Music", "Exit1"}) disc_.Remove("VOICES", voice);
  std::filesystem::create_symlink(ORVANTA_PROGRAM, disc_.Folder() / "orvanta");
}

void ShellOnScreen::TearDown() {
  if (!program_) return;
  EXPECT_EQ(program_->Printed(), "");
}

void ShellOnScreen::Launch() {
  const Size screen = screen_.Extent();
  screen_.MoveMouse({screen.width - 1, screen.height - 1});
  program_.emplace((disc_.Folder() / "orvanta").string(), "/");
}

void ShellOnScreen::AwaitMain() {
  const auto find = [&] {
    main_ = 0;
    for (const WindowId window : Windows())
      if (screen_.TitleOf(window) == kTitle && screen_.Active() == window) main_ = window;
    return main_ != 0;
  };
  ASSERT_TRUE(Eventually(find)) << "no active main window among " << Windows().size()
                                << "; printed: " << program_->Printed();
  place_ = screen_.PlaceOf(main_);
  ASSERT_TRUE(Soon([&] { return PixelOfMain({300, 455}) == kMain; })) << "the main window stays unpainted";
}

void ShellOnScreen::Leave() {
  ClickMain(MiddleOf(ButtonBox(0)));
  EXPECT_EQ(program_->Ended(), 0);
  EXPECT_TRUE(Soon([&] { return Windows().empty(); }));
}

std::vector<WindowId> ShellOnScreen::Windows() const {
  std::vector<WindowId> windows;
  for (const WindowId window : screen_.Windows())
    if (program_ && screen_.PidOf(window) == program_->Pid()) windows.push_back(window);
  return windows;
}

std::string ShellOnScreen::Differs(const Rect& area, const Look& expected) const {
  std::string difference;
  Soon([&] { return (difference = Difference(expected, screen_.See(area))).empty(); });
  return difference;
}

Rect ShellOnScreen::LabelBox(int index, bool top) {
  return {90 + 20, 140 + (top ? 10 : 52) + 27 * index, 401, 26};
}

void ShellOnScreen::Choose(int index, bool top) const {
  PointAt(MiddleOf(LabelBox(index, top)));
  screen_.Rest();
  screen_.Rest();
  const Point target = MiddleOf(LabelBox(index, top));
  ClickMain(target);
  EXPECT_TRUE(Soon([&] { return PixelOfMain({500, target.y}) == kCross; })) << "no crosshair";
}

Rgb ShellOnScreen::ButtonColour(int index, int look) {
  return static_cast<Rgb>((20 + 20 * index) << 16 | (30 + 100 * look) << 8 | (200 - 10 * index));
}

Rect ShellOnScreen::ButtonBox(int index) {
  const Point place = kBarButtons.at(static_cast<std::size_t>(index)).place;
  return {place.x, place.y, kButtonSize.width, kButtonSize.height};
}

Point ShellOnScreen::MiddleOf(const Rect& area) {
  return {area.left + area.width / 2, area.top + area.height / 2};
}

}  // namespace orvanta::test
