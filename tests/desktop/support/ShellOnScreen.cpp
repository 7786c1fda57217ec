#include "desktop/support/ShellOnScreen.h"

#include "desktop/support/Programs.h"

namespace orvanta::test {

namespace {

// In the order of the bar: a button's keys begin with its name, its pictures' files with the same in small.
constexpr const char* kBarNames[] = {"Ext",   "Snd1", "Snd2", "Hlp", "Start",
                                     "Pauza", "Stop", "Info", "Min", "Pokaz"};

}  // namespace

ShellOnScreen::ShellOnScreen() {
  constexpr std::tuple<const char*, Size, Rgb> kArt[] = {
      {"main", kMainSize, kMain},        {"tlo", {472, 309}, kArea},
      {"kreska", {472, 33}, kLineStrip}, {"startpic", {64, 45}, kStartPicture},
      {"under", {640, 30}, kUnder},      {"left", {10, 80}, kLeft},
      {"upper", {204, 6}, kUpper},       {"right1", {6, 10}, kRight},
      {"right2", {6, 10}, kRight},       {"right3", {6, 10}, kRight},
      {"bar", {20, 270}, kBar},          {"knob", {16, 20}, kKnob},
      {"help", {400, 600}, kHelpPage},   {"about", {400, 250}, kAboutPage},
      {"producer", {40, 30}, kProducer}, {"shot", {320, 240}, kShot}};
  for (const auto& [name, size, colour] : kArt)
    disc_.Picture(std::string(name) + ".gif", size.width, size.height, colour);
  for (int button = 0; button < 10; ++button)
    for (int look = 0; look < 3; ++look)
      disc_.Picture(
          disc_.Value("GLOBAL", std::string(kBarNames[button]) + "B") + std::to_string(look) + ".gif", 36, 24,
          ColourOf(button, look));
  // The top edge of the outline would cut these two.
  for (const char* key : {"HlpY", "InfoY"}) disc_.Set("GLOBAL", key, "100");
  disc_.Set("HEADLINE", "Left", "210");
  for (const char* voice : {"Start", "Music", "Exit1"}) disc_.Remove("VOICES", voice);
  std::filesystem::create_symlink(ShellProgram(), disc_.Folder() / "orvanta");
}

void ShellOnScreen::TearDown() { EXPECT_EQ(program_ ? program_->Printed() : "", ""); }

void ShellOnScreen::Launch() {
  screen_.MoveMouse({whole_.width - 1, whole_.height - 1});
  program_.emplace(std::vector<std::string>{disc_.Folder() / "orvanta"});
}

void ShellOnScreen::AwaitMain() {
  ASSERT_TRUE(Soon([&] {
    main_ = screen_.Active();
    return screen_.TitleOf(main_) == "Płyta próbna" &&
           static_cast<int>(screen_.Number(main_, "_NET_WM_PID")) == program_->Pid();
  })) << "no active main window among "
      << Windows().size() << "; printed: " << program_->Printed();
  place_ = screen_.PlaceOf(main_);
  ASSERT_TRUE(Becomes({300, 455}, kMain)) << "the main window stays unpainted";
}

void ShellOnScreen::Leave() {
  ClickButton(kExit);
  EXPECT_EQ(program_->Ended(), 0);
  EXPECT_TRUE(Soon([&] { return Windows().empty(); }));
}

std::vector<WindowId> ShellOnScreen::Windows() const {
  std::vector<WindowId> windows = screen_.Windows();
  std::erase_if(windows, [&](WindowId window) {
    return !program_ || static_cast<int>(screen_.Number(window, "_NET_WM_PID")) != program_->Pid();
  });
  return windows;
}

bool ShellOnScreen::MainIsActive(std::size_t windows) const {
  return Soon([&] { return screen_.Active() == Main() && Windows().size() == windows; });
}

bool ShellOnScreen::Becomes(Point inMain, Rgb colour) const {
  return Soon([&] { return PixelOfMain(inMain) == colour; });
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
  const Point target = MiddleOf(LabelBox(index, top));
  PointAt(target);
  screen_.Rest();
  screen_.Rest();
  ClickMain(target);
  EXPECT_TRUE(Becomes({500, target.y}, kCross)) << "no crosshair";
}

void ShellOnScreen::GoBack() const {
  ClickMain({515, 110});
  PointAside();
  EXPECT_TRUE(Becomes({300, 430}, kArea)) << "the list does not come back";
}

Rgb ShellOnScreen::ColourOf(int button, int look) {
  return static_cast<Rgb>((20 + 20 * button) << 16 | (30 + 100 * look) << 8 | (200 - 10 * button));
}

Rect ShellOnScreen::ButtonBox(int button) const {
  const auto place = [&](const char* axis) {
    return std::stoi(disc_.Value("GLOBAL", kBarNames[button] + std::string(axis)));
  };
  return {place("X"), place("Y"), 36, 24};
}

}  // namespace orvanta::test
