#include "menu/Slider.h"

#include <cmath>

#include "startup/Shell.h"

namespace orvanta {

void Slider::Attach(Knob& knob) {
  knob.image.MouseIcon = Pointer::OpenHand;
  knob.image.MouseDown = [this, &knob](const MouseEvent& event) { MouseDown(knob, event); };
  knob.image.MouseMove = [this, &knob](const MouseEvent& event) { MouseMove(knob, event); };
  knob.image.MouseUp = [this, &knob](const MouseEvent&) { MouseUp(knob); };
  knob.image.SetValue = [this, &knob](double pos) { MoveBy(knob, pos - SuwakPos); };
}

void Slider::SuwakInit(const Knob& knob, const Keys& keys) {
  const Settings& settings = shell_.settings;
  knob.image.Picture = shell_.LoadPicture(settings.Picture(keys.picture));
  YMin = CLng(settings.Double(keys.yMin));
  YMax = CLng(settings.Double(keys.yMax));
  YStep = CInt(settings.Double(keys.yStep));
  knob.image.Left = settings.Double(keys.left);
  knob.image.Top = YMin;
  SuwakDir = -1;
  SuwakPos = 0;
  SuwakY = YMin;
  SuwakScale = 1;
  SuwakDrag = false;
  knob.bar.Visible = knob.image.Visible = true;
}

void Slider::SetRange(std::int32_t overflow) {
  SuwakRange = overflow;
  const double travel = static_cast<double>(YMax) - YMin;
  SuwakScale = travel > 0 ? static_cast<float>(SuwakRange / travel) : 0.0F;
}

void Slider::SetNoRange() {
  SuwakScale = 0;
  SuwakDir = -1;
}

void Slider::MouseDown(const Knob& knob, const MouseEvent& event) {
  if (event.Button == kLeftButton) {
    SuwakGrab = CLng(shell_.modMouse.CursorPos().y - knob.image.Top);
    knob.image.MouseIcon = Pointer::ClosedHand;
  }
  SuwakDrag = true;
}

void Slider::MouseMove(Knob& knob, const MouseEvent& event) {
  if (event.Button != kLeftButton || SuwakGrab < 0) return;
  MoveBy(knob, shell_.modMouse.CursorPos().y - static_cast<double>(SuwakGrab) - knob.image.Top);
}

void Slider::MoveBy(Knob& knob, double pixels) {
  SuwakDir = pixels < 0 ? 0 : 1;
  MoveSuwak(knob, CLng(std::fabs(pixels)));
  SuwakDir = -1;
}

void Slider::MouseUp(const Knob& knob) {
  SuwakGrab = -1;
  SuwakDrag = false;
  knob.image.MouseIcon = Pointer::OpenHand;
}

void Slider::MoveSuwak(Knob& knob, std::int32_t step) {
  if (SuwakScale == 0.0F) return;
  MoveKnob(knob, step);
  if (SuwakPos == knob.LastPos) return;
  knob.scroll();
  knob.LastPos = CInt(SuwakPos);
}

void Slider::MoveKnob(const Knob& knob, std::int32_t step) {
  const bool up = SuwakDir == 0;
  const std::int64_t wanted = std::int64_t{SuwakY} + (up ? -std::int64_t{step} : std::int64_t{step});
  const bool beyond = up ? wanted < YMin : wanted > YMax;
  SuwakY = beyond ? (up ? YMin : YMax) : static_cast<std::int32_t>(wanted);
  if (beyond) SuwakDir = -1;
  knob.image.Top = SuwakY;
  // The user sees the knob move before the content.
  knob.image.Refresh();
  SuwakPos = CLng(static_cast<double>(SuwakY) - YMin);
}

}  // namespace orvanta
