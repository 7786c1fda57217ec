// A short visit, as it must be under every window manager that minimises windows and has workspaces.

#include <algorithm>

#include "desktop/support/ShellOnScreen.h"

namespace orvanta::test {
namespace {

class DesktopStory : public ShellOnScreen {
 protected:
  static constexpr Rect kMainPlace{178, 136, 667, 496}, kKino{212, 159, 600, 450};
  enum CinemaButton { kClose = 1, kWhole = 3 };

  DesktopStory() {
    disc_.Menu("MAINMENU", {"Film"});
    disc_.Entry("Film", {{"PlayAs", "MOVIE"}, {"Parameters", "%:\\brak.avi"}});
    disc_.Picture("kino.gif", kKino.width, kKino.height, 0x102018);
  }

  /// What is wrong with how the main window and its strips stand; empty if nothing is.
  std::string Apart() const {
    for (const auto& [strip, colour] : {std::pair{Rect{0, 273, 178, 80}, kLeft},
                                        {Rect{386, panel_, 204, 136 - panel_}, kUpper},
                                        {Rect{845, 450, 179, 10}, kRight},
                                        {Rect{845, 505, 179, 10}, kRight},
                                        {Rect{845, 560, 179, 10}, kRight}}) {
      const std::string name = "the strip at " + std::to_string(strip.top);
      if (!screen_.See(strip).IsAll(colour)) return name + " is not seen whole";
      if (screen_.See({strip.left, strip.Bottom(), 1, 1}).IsAll(colour)) return name + " is too large";
    }
    if (screen_.PlaceOf(Main()) != kMainPlace) return "the main window is elsewhere";
    if (!screen_.See(InMain(Rect{580, 455, 1, 1})).IsAll(kMain)) return "the main window is not seen";
    if (screen_.Active() != Main()) return "active is " + screen_.TitleOf(screen_.Active());
    if (Windows().size() != 6 || Windows().back() != Main()) return "the main window is not uppermost";
    return "";
  }
  void ExpectTogether(const std::string& after) const {
    EXPECT_TRUE(Soon([&] { return Apart().empty(); })) << after << ": " << Apart();
  }
  bool DemandAttention() const {
    return std::ranges::any_of(Windows(), [&](WindowId window) {
      return screen_.HasState(window, "_NET_WM_STATE_DEMANDS_ATTENTION");
    });
  }
  bool Gone() const {
    const Rect parts[] = {{0, 273, 178, 80}, {386, 0, 204, 136}, {845, 450, 179, 120}, kMainPlace};
    return std::ranges::none_of(parts, [&](const Rect& part) {
      const Look seen = screen_.See(part);
      return seen.Count(kLeft) + seen.Count(kUpper) + seen.Count(kRight) + seen.Count(kMain) > 0;
    });
  }
  void ExpectGone(const std::string& after) const {
    EXPECT_TRUE(Soon([&] { return Gone(); })) << "something stays after " << after;
  }
  void MinimiseAndRestore() const {
    ClickButton(kMinimise);
    ExpectGone("minimising");
    screen_.Activate(Main());
    ExpectTogether("minimising");
  }
  /// The window that has come up before the main one, once it is active.
  WindowId Modal(const Rect& place) const {
    WindowId modal = 0;
    EXPECT_TRUE(Soon([&] {
      modal = screen_.Active();
      return modal != Main() && modal == Windows().back() && screen_.PlaceOf(modal) == place;
    })) << "at "
        << screen_.PlaceOf(modal).left << "," << screen_.PlaceOf(modal).top;
    EXPECT_TRUE(screen_.HasState(modal, "_NET_WM_STATE_SKIP_TASKBAR"));
    return modal;
  }
  void ClickCinema(int button) const {
    screen_.Click({kKino.left + 50 + 50 * button + 18, kKino.top + 400 + 12});
  }

  // Some window managers show the desktop only if there is a window for it.
  const OtherWindow desktop_{whole_, kBehind, "DESKTOP"};
  int panel_ = 0;
};

// Faults: a strip that stays away, stands elsewhere or takes the activation; a window that never comes back.
TEST_F(DesktopStory, TheWindowsKeepTogether) {
  Start();
  ExpectTogether("the start");
  EXPECT_FALSE(DemandAttention());
  MinimiseAndRestore();
  screen_.Ask(0, "_NET_SHOWING_DESKTOP", 1);
  ExpectGone("showing the desktop");
  screen_.Activate(Main());
  ExpectTogether("showing the desktop");

  Screen::Hand("set_num_desktops 2 set_desktop 1");
  ExpectGone("going to another workspace");
  Screen::Hand("set_desktop 0");
  ExpectTogether("coming back from another workspace");
  screen_.Ask(Main(), "_NET_WM_DESKTOP", 1);
  ExpectGone("sending the main window to another workspace");
  Screen::Hand("set_desktop 1");
  screen_.Activate(Main());
  ExpectTogether("following it there");

  Choose(0);
  EXPECT_TRUE(Shows(kShow, kNormal));
  ClickMain({450, 230});
  Modal({352, 256, 320, 256});
  screen_.Click({400, 300});
  ExpectTogether("the viewer");
  ClickButton(kShow);
  const WindowId cinema = Modal(kKino);
  ClickCinema(kWhole);
  Modal(whole_);
  EXPECT_TRUE(Soon([&] { return screen_.See(whole_).IsAll(0); }));
  screen_.Click({30, 30});
  EXPECT_EQ(Modal(kKino), cinema);
  ClickCinema(kClose);
  ExpectTogether("the cinema");
  Leave();
  Screen::Hand("set_desktop 0");  // the next test may run on the same display
}

// Fault: a strip that a panel pushes over the main window.
TEST_F(DesktopStory, APanelAtTheTopTakesNothingOfTheMainWindow) {
  const OtherWindow panel({0, 0, whole_.width, 30}, 0x404040, "DOCK");
  panel_ = 30;
  Start();
  ExpectTogether("the start");
  MinimiseAndRestore();
  Leave();
}

}  // namespace
}  // namespace orvanta::test
