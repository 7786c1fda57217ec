// What depends on the cursor and the clock: the tick, the hover box and the crosshair.

#include <cmath>

#include "startup/Shell.h"

namespace orvanta {

void MainForm::Timer1_Timer() {
  ParkMusic();
  if (shell_.modActiveWindow.CheckActive()) {
    shell_.modMouse.OverButton(0, *this, "ButtonM", ImageList1, static_cast<std::int16_t>(PressedButton));
    if (!slider.SuwakDrag) MousePos();
  }
  if (MoveMarker()) return;
  const bool& active = shell_.modActiveWindow.AppActive;
  if (!active) shell_.host.Loop().Pump();
  if (!shell_.basCommon.SoundWanted || !active || shell_.modMain.ItemSoundHold) {
    SoundOff();
  } else {
    SoundOn();
  }
}

void MainForm::MousePos() {
  modMouse& mouse = shell_.modMouse;
  mouse.Track(*this);
  const Point cursor = mouse.CursorPos();
  MouseX = CLng(cursor.x - picTlo.Left);
  MouseY = CLng(cursor.y - picTlo.Top);
  for (int i = lblPos1.UBound(); i >= 0; --i) {
    const Label& label = lblPos1(i);
    if (label.Left <= MouseX && label.Left + label.Width >= MouseX && label.Top <= MouseY &&
        label.Top + label.Height + 2 >= MouseY) {
      OverLabel(static_cast<std::int16_t>(i));
      return;
    }
  }
  Line1.Show(false);
}

void MainForm::OverLabel(std::int16_t Index) {
  if (Index == hovered_ - 1 && Line1(0).Visible) return;
  if (InView(lblPos1(Index))) {
    LinesSet(Index);
  } else {
    Line1.Show(false);
  }
  hovered_ = static_cast<std::int16_t>(Index + 1);
}

void MainForm::LinesSet(std::int16_t Index) {
  const Label& label = lblPos1(Index);
  const double left = label.Left - 2, top = label.Top - 2;
  const double right = label.Left + label.Width + 1, bottom = label.Top + label.Height - 1;
  Line1(0).Place(left, top, right, top);
  Line1(1).Place(right, top, right, bottom);
  Line1(2).Place(right, bottom, left, bottom);
  Line1(3).Place(left, bottom, left, top);
  Line1.Show(true);
}

void MainForm::Strzal(std::int16_t Index) {
  const std::int16_t pause = shell_.settings.Whole({"MENUITEM", "Line2Sleep"});
  const auto draw = [this](std::int32_t x, double y) {
    Line2(0).Place(x, 0, x, picTlo.Height);
    Line2(0).Refresh();
    Line2(1).Place(0, y, picTlo.Width, y);
    Line2(1).Refresh();
  };
  crosshairRuns_ = true;
  Line2.ForEach([](Line& line) {
    line.Place(-1, -1, -1, -1);
    line.Visible = true;
  });
  // The click fixes the number of steps; their target follows the cursor.
  for (std::int32_t j = 0, last = MouseX; j <= last; j += 10) {
    // At the left edge there is no distance to cover, and the first step is drawn at the top.
    const double r = MouseX > 0 ? static_cast<double>(j) / MouseX : 0;
    draw(j, std::floor(r * MouseY));
    shell_.host.Loop().Pump();
    shell_.host.Sleep(pause);
  }
  draw(MouseX, MouseY);
  if (Index <= lblPos1.UBound()) {
    lblPos1(Index).ForeColor = 0x00FFFF;
    lblPos1(Index).Refresh();
  }
  shell_.host.Sleep(400);
  Line2.Show(false);
  crosshairRuns_ = false;
}

}  // namespace orvanta
