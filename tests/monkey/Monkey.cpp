#include "monkey/Monkey.h"

#include <algorithm>

namespace orvanta::test {

namespace {

/// A user with a random machine: the screen, the sound card, and how long files take to load.
class Monkey : TestShell {
 public:
  Monkey(const MonkeyDisc& disc, Random& random, Figures& figures)
      : TestShell(disc), random_(random), figures_(figures) {
    host.screen = Dice(3) == 0 ? Size{640, 480} : Size{1024, 768};
    host.soundCard = Dice(5) != 0;
    host.messageHold = Dice(3) * 400;
    const Milliseconds delay = Dice(2) * Dice(2) * 4000;
    host.media["film.avi"] = {2.5, Dice(3) == 0 ? Size{0, 0} : Size{15, 13}, delay};
    host.media["song.wav"] = {3, {}, delay};
  }

  std::string Live(long steps) {
    Do("start");
    designed_ = ended ? 0 : static_cast<int>(Main().Controls().size()) - Main().lblPos1.UBound();
    for (int burst = 0; steps > 0 && !Over(); steps -= burst) {
      stepsLeft_ = burst = std::min(static_cast<int>(steps), 10 + Dice(60));
      Burst();
    }
    return fault_;
  }

 private:
  int Dice(int n) { return Below(random_, n); }
  bool Over() const { return ended || !fault_.empty(); }
  bool Waits() { return host.Loop().Depth() > 0; }

  void Burst() {
    // No wait of the program lasts longer than this once the user closes everything.
    host.deadline = host.Now() + 20000 * 1000;
    calms_ = 0;
    host.After(1, [this] { Step(); });
    while (calms_ < 2 && !Over()) Run(50);
    calms_ = kRest;
    meddled_ = false;
    if (!Over()) CheckRest();
    if (!Over()) GoUp();
  }

  void Step() {
    Check();
    if (!fault_.empty()) return;
    if (stepsLeft_ == 0) return Calm();
    --stepsLeft_;
    ++figures_.steps;
    figures_.waits += Waits();
    figures_.windows += &Front() != &Main();
    meddled_ = meddled_ || Waits();
    Act();
    host.After(Dice(20) == 0 ? 1500 : Dice(120), [this] { Step(); });
  }

  void Calm() {
    if (calms_ == kRest) return;
    ++calms_;
    for (const int button : {kLeftButton, kRightButton})
      if (held_ & button) Hold(button);
    host.ActivateOther();
    if (&Front() != &Main()) host.RequestClose(Front());
    host.After(500, [this] { Calm(); });
  }

  void GoUp() {
    if (Main().WindowState == Form::kMinimised) host.Restore(Main());
    Do("return");
    Main().imgUp_Click();
    Run(1300);
    Must(Main().MenuLevel == 0, "the way up leads to the root");
    Must(Main().PressedButton == BarButton::None, "no button is latched in a list");
    Must(Main().AM3.CurrentState() <= ActiveMovie::kStopped, "an entry's music ends when it is left");
    CheckRest();
  }

  Point Somewhere() { return {Dice(host.screen.width), Dice(host.screen.height)}; }
  Point OnControl() {
    const auto& controls = Front().Controls();
    return MiddleOf(*controls[random_() % controls.size()]);
  }

  void Click(Point at) {
    // Most clicks on the exit button are left out; otherwise no run would be long.
    const Rect exit = Button(BarButton::Exit).Bounds().Moved({Main().Place().left, Main().Place().top});
    if (exit.Contains(at) && Dice(20) != 0) return host.MoveMouse(at);
    host.Click(at);
    held_ &= ~kLeftButton;
  }
  void Hold(int button) {
    if (!(held_ & button)) {
      host.Press(button);
    } else if (Dice(4) != 0) {
      host.Release(button);
    } else {
      host.ReleaseUntold(button);
    }
    held_ ^= button;
  }
  /// A click that was on its way when its window was hidden or minimised.
  void ClickHidden() {
    const auto& window = *host.windows[random_() % host.windows.size()];
    if (window.visible && !window.minimised) return;
    const Point place{Dice(window.place.width + 1), Dice(window.place.height + 1)};
    for (const auto kind : {FormEvent::Kind::MousePress, FormEvent::Kind::MouseRelease})
      host.Loop().Post(
          {kind, &window.form, place, kLeftButton, kind == FormEvent::Kind::MousePress ? kLeftButton : 0});
  }
  void Drag(const Image& knob) {
    if (!knob.Visible) return;
    if (!held_) host.MoveMouse(MiddleOf(knob)), Hold(kLeftButton);
    host.MoveMouse(MiddleOf(knob) + Point{0, Dice(300) - 150});
    if (Dice(3) == 0 && (held_ & kLeftButton)) Hold(kLeftButton);
  }
  void Act() {
    const int what = Dice(104);
    Form* const strip = shell.frmDociagGora.Loaded();
    const Point label = MiddleOf(Main().lblPos1(Dice(Main().lblPos1.UBound() + 1)));
    // While an entry is shown, prefer its transport buttons.
    if (what < 8 && !Main().picTlo.Visible) return Click(MiddleOf(Button(4 + what % 3)));
    if (what < 25) return Click(MiddleOf(Button(1 + Dice(9))));
    if (what < 38) return host.MoveMouse(label), Click(label);
    if (what < 42) return host.MoveMouse(label);
    if (what < 62) return Click(OnControl());
    if (what < 68) return Click(Somewhere());
    if (what < 76) return host.MoveMouse(Dice(2) ? Somewhere() : OnControl());
    if (what < 80) return Hold(Dice(3) ? kLeftButton : kRightButton);
    if (what < 86) return Drag(Main().imgSuwak), Drag(Main().imgSSuwak);
    if (what < 90) return Click(MiddleOf(Dice(4) ? Main().imgBack : Main().imgUp));
    if (what < 92 && &Front() != &Main()) return host.RequestClose(Front());
    if (what < 92) return Dice(20) ? host.Minimise(Main()) : host.RequestClose(Main());
    if (what < 93) return host.ActivateOther();
    if (what < 95 && Main().WindowState == Form::kMinimised) host.Restore(Main());
    if (what < 95) return host.Activate(strip && strip->Visible && Dice(4) == 0 ? *strip : Front());
    if (what == 95) host.startResult = Dice(2) ? 33 : Dice(36) - 1;
    if (what == 96) Click(MiddleOf(Main().picShot(0)));
    if (what == 97) host.messageHold = Dice(4) * 150;
    if (what == 98 || what == 99) host.RestartSoundServer();
    if (what == 100 || what == 101) Hold(kRightButton), Click(OnControl());
    if (what > 101) ClickHidden();
  }

  void Must(bool holds, const char* what) {
    if (!holds && fault_.empty()) fault_ = std::string(what) + ", at " + std::to_string(host.Now()) + " ms";
  }

  /// Checks what must hold whatever the user does.
  void Check() {
    const Image &on = Button(BarButton::SoundOn), &off = Button(BarButton::SoundOff);
    const int arrays = Main().lblPos1.UBound() + Main().picShot.UBound();
    const auto levels = static_cast<int>(Main().MenuPath.size());
    Must(on.Visible != off.Visible, "one of the two sound buttons is there");
    Must(on.Visible == on.Enabled && off.Visible == off.Enabled, "the hidden sound button takes no click");
    Must(Main().MenuLevel >= 0 && Main().MenuLevel < levels, "the level is one of the path");
    Must(!Main().imgPomoc.Visible || !Main().imgSeven.Visible, "at most one page is open");
    Must(static_cast<int>(Main().Controls().size()) == designed_ + arrays, "there are no other controls");
    CheckTransport(Main().PressedButton, Main().AM3.CurrentState());
  }

  void CheckTransport(BarButton latch, int state) {
    using enum BarButton;
    const bool pressed = latch == None || Button(latch).Picture() ==
                                              Main().ImageList1(PictureEntry(latch, ButtonPicture::Pressed));
    Must(latch == None || latch == Start || latch == Pause || latch == Stop, "only transport buttons latch");
    Must(latch != Pause || pressed, "a latched Pauza looks pressed");
    // The following holds unless the user has interfered with a wait.
    if (meddled_ || Waits() || Main().picTlo.Visible || !Button(Stop).Visible) return;
    Must(latch != Start || state != ActiveMovie::kPaused, "a latched Start means that music plays");
    Must(latch != Pause || state == ActiveMovie::kPaused, "a latched Pauza means that music is paused");
    Must(latch != Stop || state <= ActiveMovie::kStopped, "a latched Stop means that nothing plays");
    Must(latch != Stop || pressed, "a latched Stop looks pressed");
  }

  void CheckRest() {
    Must(!Waits() && &Front() == &Main(), "nothing waits and no window is left open");
    Must(!shell.modMain.ShowPicOpen, "the viewer is known to be closed");
    Must(Main().MousePointer == Form::kDefaultPointer, "the hourglass is gone");
    Must(Main().Timer1.Enabled, "the tick goes on");
    Must(host.windows.size() == (shell.frmDociagLewo.Loaded() ? 6 : 1), "no window outlives its form");
  }

  static constexpr int kRest = 100;

  Random& random_;
  Figures& figures_;
  std::string fault_;
  int stepsLeft_ = 0;
  int calms_ = kRest;     // steps since the burst, or since the program returned to its loop
  bool meddled_ = false;  // the mouse was used during a nested wait
  int held_ = 0;
  int designed_ = 0;  // number of the main window's controls that every view has
};

}  // namespace

std::string LiveAsAMonkey(const MonkeyDisc& disc, Random& random, long steps, Figures& figures) {
  return Monkey(disc, random, figures).Live(steps);
}

}  // namespace orvanta::test
