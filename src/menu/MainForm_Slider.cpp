// The slider of lists and pages, and what it shares with that of the screenshots.

#include <cmath>

#include "menu/MenuGeometry.h"
#include "startup/Shell.h"

namespace orvanta {

void MainForm::SuwakInit() {
  const Settings& settings = shell_.settings;
  imgSuwakPas.Picture = shell_.LoadPicture(settings.Picture({"SLIDER", "SliderBarB"}));
  imgSuwakPas.Left = settings.Double({"SLIDER", "SliderBarX"});
  imgSuwakPas.Top = settings.Double({"SLIDER", "SliderBarY"});
  imgSuwak.Picture = shell_.LoadPicture(settings.Picture({"SLIDER", "SliderB"}));
  YMin = CLng(settings.Double({"SLIDER", "YMin"}));
  YMax = CLng(settings.Double({"SLIDER", "YMax"}));
  YStep = CInt(settings.Double({"SLIDER", "YStep"}));
  imgSuwak.Left = settings.Double({"SLIDER", "PosX"});
  imgSuwak.Top = YMin;
  SuwakDir = -1;
  SuwakPos = 0;
  SuwakY = YMin;
  SuwakScale = 1;
  SuwakDrag = false;
  imgSuwakPas.Visible = imgSuwak.Visible = true;
}

void MainForm::KnobDown(Image& knob, const MouseEvent& event) {
  if (event.Button == kLeftButton) {
    SuwakGrab = CLng(shell_.modMouse.CursorPos().y - knob.Top);
    knob.MouseIcon = Pointer::ClosedHand;
  }
  SuwakDrag = true;
}

void MainForm::DragKnob(const Image& knob, const MouseEvent& event, void (MainForm::*move)(std::int32_t)) {
  if (event.Button != kLeftButton || SuwakGrab < 0) return;
  const double d = shell_.modMouse.CursorPos().y - static_cast<double>(SuwakGrab) - knob.Top;
  SuwakDir = d < 0 ? 0 : 1;
  (this->*move)(CLng(std::fabs(d)));
  SuwakDir = -1;
}

void MainForm::KnobUp(Image& knob) {
  SuwakGrab = -1;
  SuwakDrag = false;
  knob.MouseIcon = Pointer::OpenHand;
}

void MainForm::MoveKnob(Image& knob, std::int32_t step) {
  const KnobMove move = MovedKnob(SuwakY, step, SuwakDir == 0, YMin, YMax);
  SuwakY = move.y;
  if (move.stopped) SuwakDir = -1;
  knob.Top = SuwakY;
  knob.Refresh();
  SuwakPos = CLng(static_cast<double>(SuwakY) - YMin);
}

void MainForm::MoveSuwak(std::int32_t step) {
  if (SuwakScale == 0.0F) return;
  MoveKnob(imgSuwak, step);
  if (SuwakPos == LastPos) return;
  if (!imgPomoc.Visible && !imgSeven.Visible) {
    // An entry opened while the music faded may have put the places of its screenshots there.
    for (int i = 0; i <= lblPos1.UBound() && static_cast<std::size_t>(i) < PosTop.size(); ++i) {
      Label& label = lblPos1(i);
      label.Top = ScrolledTop(PosTop[static_cast<std::size_t>(i)], SuwakScale, SuwakPos);
      label.ForeColor = LabelColour(label);
    }
  } else {
    for (Image* page : {&imgPomoc, &imgSeven}) {
      if (page->Visible) page->Top = -(static_cast<float>(SuwakPos) * SuwakScale);
    }
  }
  LastPos = CInt(SuwakPos);
}

}  // namespace orvanta
