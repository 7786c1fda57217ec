#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desktop/OtherWindow.h"
#include "desktop/Program.h"
#include "desktop/Screen.h"
#include "support/TestDisc.h"

namespace orvanta::test {

/// Whether something happens within five seconds.
bool Soon(const std::function<bool()>& happened);

/// The real program on a real display, before a window of another program that covers the whole screen.
///
/// The disc is silent, and everything that is to be told apart on the screen has a colour of its own.
/// Whatever a test does, the program must not print a word.
class ShellOnScreen : public testing::Test {
 protected:
  static constexpr Rgb kMain = 0x203040, kArea = 0x304830, kLineStrip = 0x605020, kStart = 0x900030,
                       kUnder = 0x009060, kLeft = 0x5000A0, kUpper = 0x7000B0, kRight = 0x9000C0,
                       kBar = 0x707070, kKnob = 0xF08000, kHelp = 0x1060A0, kAbout = 0xA06010,
                       kProducer = 0x800080, kShot = 0x2080D0, kHover = 0x00FF00, kCross = 0xFF0000,
                       kBehind = 0xC0C8D0;
  static constexpr Size kMainSize{667, 496};

  ShellOnScreen();
  void TearDown() override;

  void Launch();     ///< starts the program
  void AwaitMain();  ///< waits until the main window is there and active
  void Start() { Launch(), AwaitMain(); }
  /// Clicks the exit button and expects the program to end in order.
  void Leave();

  /// The program's windows, from the bottom to the top.
  std::vector<WindowId> Windows() const;
  WindowId Main() const { return main_; }
  /// From places in the main window to places on the screen.
  Point InMain(Point place) const { return place + Point{place_.left, place_.top}; }
  Rect InMain(const Rect& area) const { return area.Moved({place_.left, place_.top}); }
  Rgb PixelOfMain(Point place) const { return screen_.Pixel(InMain(place)); }
  void PointAt(Point inMain) const { screen_.MoveMouse(InMain(inMain)); }
  void ClickMain(Point inMain) const { screen_.Click(InMain(inMain)); }
  /// Waits until a part of the screen looks as expected; what differs if it does not come to that.
  std::string Differs(const Rect& area, const Look& expected) const;

  /// The place of a label in the main window. Below the top level lists begin lower.
  static Rect LabelBox(int index, bool top);
  /// Points at a label long enough for a tick, clicks it and waits for the crosshair.
  void Choose(int index, bool top) const;
  static Rgb ButtonColour(int index, int look);
  /// The place of a button of the bar in the main window.
  static Rect ButtonBox(int index);
  static Point MiddleOf(const Rect& area);

  TestDisc disc_;
  Screen screen_;
  OtherWindow behind_;
  std::optional<Program> program_;

 private:
  WindowId main_ = 0;
  Rect place_;
};

}  // namespace orvanta::test
