// The screenshots of an entry: their slider and the way to the viewer.

#include "menu/MenuGeometry.h"
#include "startup/Shell.h"

namespace orvanta {

void MainForm::SSuwakInit() {
  const Settings& settings = shell_.settings;
  imgSSlider.Picture = shell_.LoadPicture(settings.Picture({"SHOTSLIDER", "SSliderBarB"}));
  imgSSlider.Left = settings.Whole({"SHOTSLIDER", "SSliderBarX"});
  imgSSlider.Top = settings.Whole({"SHOTSLIDER", "SSliderBarY"});
  const Image& last = picShot(picShot.UBound());
  const std::int32_t bottom = CLng(last.Height + last.Top);
  if (picShotTlo.Height >= bottom) {
    SuwakScale = 0;
    SuwakDir = -1;
    return;
  }
  imgSSuwak.Picture = shell_.LoadPicture(settings.Picture({"SHOTSLIDER", "SSuwakB"}));
  YMin = CLng(settings.Double({"SHOTSLIDER", "YMin"}));
  YMax = CLng(settings.Double({"SHOTSLIDER", "YMax"}));
  YStep = CInt(settings.Double({"SHOTSLIDER", "YStep"}));
  imgSSuwak.Left = settings.Double({"SHOTSLIDER", "PosX"});
  imgSSuwak.Top = YMin;
  SuwakDir = -1;
  SuwakPos = 0;
  SuwakY = YMin;
  SuwakDrag = false;
  // The space above the first picture comes back below the last one.
  SuwakRange = CLng(bottom - picShotTlo.Height + 6);
  SuwakScale = SliderScale(SuwakRange, YMin, YMax);
  imgSSlider.Visible = imgSSuwak.Visible = true;
}

void MainForm::MoveSSuwak(std::int32_t step) {
  if (SuwakScale == 0.0F) return;
  MoveKnob(imgSSuwak, step);
  if (SuwakPos == LastSPos) return;
  for (int i = 0; i <= picShot.UBound() && static_cast<std::size_t>(i) < PosTop.size(); ++i) {
    const double top = PosTop[static_cast<std::size_t>(i)] - static_cast<double>(SuwakScale) * SuwakPos;
    picShot(i).Top = static_cast<float>(top);
  }
  LastSPos = CInt(SuwakPos);
}

void MainForm::picShot_Click(std::int16_t Index) {
  shell_.basCommon.ShowArg = Index;
  shell_.frmShowPic->ShowModal(*this);
}

}  // namespace orvanta
