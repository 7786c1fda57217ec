// What the monkey does. What it expects stands in MonkeyChecks.cpp.

#include "monkey/Monkey.h"

#include <algorithm>

namespace orvanta::test {

namespace {

// No wait of the program outlasts this once the user closes everything.
constexpr Milliseconds kPatience = 3600 * 1000;

}  // namespace

void Monkey::Live(long steps) {
  user_.Start();
  ++figures_.shells;
  if (user_.ended) return;
  designed_ = Main().Controls().size() - static_cast<std::size_t>(Main().lblPos1.UBound());
  while (steps > 0 && !user_.ended && fault_.empty()) {
    const int burst = static_cast<int>(std::min<long>(steps, 10 + Below(random_, 60)));
    steps -= burst;
    Burst(burst);
  }
  figures_.exits += user_.ended;
  figures_.starts += static_cast<long>(Host().started.size());
  figures_.messages += static_cast<long>(Host().messages.size());
}

void Monkey::Burst(int steps) {
  Host().deadline = Host().Now() + kPatience;
  stepsLeft_ = steps;
  calms_ = 0;
  resting_ = false;
  Host().After(1, [this] { Step(); });
  while (!resting_ && !user_.ended && fault_.empty()) {
    user_.Run(50);
    resting_ = calms_ > 1;
  }
  if (user_.ended || !fault_.empty()) return;
  meddled_ = false;
  CheckRest();
  GoUp();
}

void Monkey::Step() {
  Check();
  if (!fault_.empty()) return;
  if (stepsLeft_ == 0) return Calm();
  --stepsLeft_;
  ++figures_.steps;
  figures_.depth = std::max(figures_.depth, Depth());
  figures_.nested += Depth() > 0;
  meddled_ = meddled_ || Depth() > 0;
  Act();
  const int pause = Below(random_, 20) == 0 ? 1500 : Below(random_, 120);
  Host().After(pause, [this] { Step(); });
}

void Monkey::Calm() {
  if (resting_) return;
  ++calms_;
  for (const int button : {kLeftButton, kRightButton}) {
    if (held_ & button) Host().Release(button);
  }
  held_ = 0;
  Host().ActivateOther();
  if (auto* viewer = user_.shell.frmShowPic.Loaded()) Host().RequestClose(*viewer);
  if (auto* film = user_.shell.frmKino.Loaded()) Host().RequestClose(*film);
  Host().After(500, [this] { Calm(); });
}

void Monkey::GoUp() {
  if (Main().WindowState == Form::kMinimised) Host().Restore(Main());
  Host().Activate(Main());
  user_.Run(100);
  if (disc_.Sound() && Main().imgUp.Enabled && user_.host.screen.width > 640) {
    user_.Click(Main().imgUp);
  } else {
    Main().imgUp_Click();
  }
  user_.Run(1300);
  Must(Main().MenuLevel == 0, "the way up leads to the root");
  Must(Main().PressedButton == -1, "no button is latched in a list");
  Must(Main().AM3.CurrentState() <= ActiveMovie::kStopped, "an entry's music ends when it is left");
  CheckRest();
}

Form& Monkey::Front() {
  if (auto* viewer = user_.shell.frmShowPic.Loaded()) return *viewer;
  if (auto* film = user_.shell.frmKino.Loaded()) return *film;
  return Main();
}

Point Monkey::OnControl(Form& form) {
  const auto& controls = form.Controls();
  for (int tries = 0; tries < 20; ++tries) {
    const Control& control =
        *controls[static_cast<std::size_t>(Below(random_, static_cast<int>(controls.size())))];
    if (control.Visible && !control.Bounds().Empty()) return MiddleOf(control);
  }
  return Somewhere();
}

Point Monkey::MiddleOf(const Control& control) {
  // A disc can put a control anywhere, the cursor stays on the screen.
  const Point middle = user_.MiddleOf(control);
  return {std::clamp(middle.x, 0, Host().screen.width - 1),
          std::clamp(middle.y, 0, Host().screen.height - 1)};
}

Point Monkey::Somewhere() {
  return {Below(random_, Host().screen.width), Below(random_, Host().screen.height)};
}

void Monkey::Click(Point at) {
  // Most clicks on the exit button are spared, else no life would be long.
  const Rect form = Main().Place();
  const Rect exit = Main().ButtonM(0).Bounds().Moved({form.left, form.top});
  if (exit.Contains(at) && Below(random_, 20) != 0) return Host().MoveMouse(at);
  Host().Click(at);
  held_ &= ~kLeftButton;
}

void Monkey::Hold(int button) {
  if (held_ & button) {
    Host().Release(button);
  } else {
    Host().Press(button);
  }
  held_ ^= button;
}

void Monkey::Drag() {
  for (const Image* knob : {&Main().imgSuwak, &Main().imgSSuwak}) {
    if (!knob->Visible) continue;
    const Point at = MiddleOf(*knob);
    if (!held_) {
      Host().MoveMouse(at);
      Hold(kLeftButton);
    }
    Host().MoveMouse({at.x, std::clamp(at.y + Below(random_, 300) - 150, 0, Host().screen.height - 1)});
    if (Below(random_, 3) == 0 && (held_ & kLeftButton)) Hold(kLeftButton);
  }
}

void Monkey::ChangeWindows() {
  switch (Below(random_, 8)) {
    case 0: Host().Minimise(Main()); break;
    case 1:
    case 2: Host().ActivateOther(); break;
    case 3:
      if (&Front() != &Main() || Below(random_, 20) == 0) Host().RequestClose(Front());
      break;
    case 4:
      if (auto* strip = user_.shell.frmDociagGora.Loaded(); strip && strip->Visible) Host().Activate(*strip);
      break;
    default:
      if (Main().WindowState == Form::kMinimised) Host().Restore(Main());
      Host().Activate(Front());
      break;
  }
}

void Monkey::Act() {
  const int what = Below(random_, 100);
  // In the view of an entry the transport is what matters.
  if (what < 8 && !Main().picTlo.Visible) {
    Click(MiddleOf(Main().ButtonM(4 + what % 3)));
  } else if (what < 25) {
    Click(MiddleOf(Main().ButtonM(1 + Below(random_, 9))));
  } else if (what < 42) {
    const Point label = MiddleOf(Main().lblPos1(Below(random_, Main().lblPos1.UBound() + 1)));
    Host().MoveMouse(label);
    if (what < 38) Click(label);
  } else if (what < 62) {
    Click(OnControl(Front()));
  } else if (what < 68) {
    Click(Somewhere());
  } else if (what < 76) {
    Host().MoveMouse(Below(random_, 2) ? Somewhere() : OnControl(Front()));
  } else if (what < 80) {
    Hold(Below(random_, 3) ? kLeftButton : kRightButton);
  } else if (what < 86) {
    Drag();
  } else if (what < 90) {
    Click(MiddleOf(Below(random_, 4) ? Main().imgBack : Main().imgUp));
  } else if (what < 94) {
    ChangeWindows();
  } else if (what < 96) {
    Host().startResult = Below(random_, 2) ? 33 : Below(random_, 36) - 1;
  } else if (what < 97) {
    Click(MiddleOf(Main().picShot(0)));
  }
}

}  // namespace orvanta::test
