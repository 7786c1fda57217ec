#pragma once

#include <gtest/gtest.h>

#include "desktop/support/Processes.h"
#include "desktop/support/Screen.h"
#include "support/TestDisc.h"

namespace orvanta::test {

/// The real program on a real display, before a window of another program that covers the whole screen.
///
/// The disc is silent, and everything that is to be told apart on the screen has a colour of its own.
/// Whatever a test does, the program must not print a word.
class ShellOnScreen : public testing::Test {
 protected:
  using Clock = std::chrono::steady_clock;
  static constexpr Rgb kMain = 0x203040, kArea = 0x304830, kLineStrip = 0x605020, kStartPicture = 0x900030,
                       kUnder = 0x009060, kLeft = 0x5000A0, kUpper = 0x7000B0, kRight = 0x9000C0,
                       kBar = 0x707070, kKnob = 0xF08000, kHelpPage = 0x1060A0, kAboutPage = 0xA06010,
                       kProducer = 0x800080, kShot = 0x2080D0, kHover = 0x00FF00, kCross = 0xFF0000,
                       kBehind = 0xC0C8D0, kWhite = 0xFFFFFF, kYellow = 0xFFFF00;
  static constexpr Size kMainSize{667, 496};
  enum Button { kExit, kMute, kUnmute, kHelp, kPlay, kPause, kStop, kAbout, kMinimise, kShow };
  enum ButtonLook { kNormal, kOver, kPressed };

  ShellOnScreen();
  void TearDown() override;

  void Launch();     ///< starts the program
  void AwaitMain();  ///< waits until the main window is there and active
  void Start() { Launch(), AwaitMain(); }
  /// Clicks the exit button and expects the program to end in order.
  void Leave();

  /// The program's windows, from the bottom to the top.
  std::vector<WindowId> Windows() const;
  /// Whether the main window is active, with so many windows of the program on the screen.
  bool MainIsActive(std::size_t windows = 6) const;
  WindowId Main() const { return main_; }
  /// From places in the main window to places on the screen.
  Point InMain(Point place) const { return place + Point{place_.left, place_.top}; }
  Rect InMain(const Rect& area) const { return area.Moved({place_.left, place_.top}); }
  Rgb PixelOfMain(Point place) const { return screen_.Pixel(InMain(place)); }
  bool Becomes(Point inMain, Rgb colour) const;
  int Ink(const Rect& inMain, Rgb colour) const { return screen_.See(InMain(inMain)).Count(colour); }
  void PointAt(Point inMain) const { screen_.MoveMouse(InMain(inMain)); }
  void PointAside() const { PointAt({300, 455}); }
  void ClickMain(Point inMain) const { screen_.Click(InMain(inMain)); }
  /// Waits until a part of the screen looks as expected; what differs if it does not come to that.
  std::string Differs(const Rect& area, const Look& expected) const;
  std::string Differs(const Rect& area, Rgb colour) const {
    return Differs(area, Look({area.width, area.height}, colour));
  }

  /// The place of a label in the main window. Below the top level lists begin lower.
  static Rect LabelBox(int index, bool top = true);
  /// Points at a label long enough for a tick, clicks it and waits for the crosshair.
  void Choose(int index, bool top = true) const;
  void GoBack() const;  ///< by the click zone above the list
  static Rgb ColourOf(int button, int look);
  Rect ButtonBox(int button) const;
  bool Shows(int button, int look) const {
    return Becomes(MiddleOf(ButtonBox(button)), ColourOf(button, look));
  }
  void ClickButton(int button) const { ClickMain(MiddleOf(ButtonBox(button))); }
  static Point MiddleOf(const Rect& area) { return {area.left + area.width / 2, area.top + area.height / 2}; }
  static double SecondsSince(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
  }

  TestDisc disc_;
  Screen screen_;
  const Rect whole_ = screen_.Whole();
  OtherWindow behind_{whole_, kBehind};
  std::optional<Program> program_;

 private:
  WindowId main_ = 0;
  Rect place_;
};

}  // namespace orvanta::test
