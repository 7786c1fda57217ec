// The screenshots of an entry: their slider, and opening the viewer.

#include "startup/Design.h"
#include "startup/Shell.h"

namespace orvanta {

void MainForm::SSuwakInit() {
  const Settings& settings = shell_.settings;
  imgSSlider.Picture = shell_.LoadPicture(settings.Picture({"SHOTSLIDER", "SSliderBarB"}));
  imgSSlider.Left = settings.Whole({"SHOTSLIDER", "SSliderBarX"});
  imgSSlider.Top = settings.Whole({"SHOTSLIDER", "SSliderBarY"});
  const Image& last = picShot(picShot.UBound());
  const std::int32_t bottom = CLng(last.Height + last.Top);
  if (picShotTlo.Height >= bottom) return slider.SetNoRange();
  slider.SuwakInit(shotKnob, {.picture = {"SHOTSLIDER", "SSuwakB"},
                              .left = {"SHOTSLIDER", "PosX"},
                              .yMin = {"SHOTSLIDER", "YMin"},
                              .yMax = {"SHOTSLIDER", "YMax"},
                              .yStep = {"SHOTSLIDER", "YStep"}});
  // The space above the first picture is repeated below the last one.
  slider.SetRange(CLng(bottom - picShotTlo.Height + kFirstShot.top));
}

void MainForm::ScrollShots() {
  const double offset = static_cast<double>(slider.SuwakScale) * slider.SuwakPos;
  for (int i = 0; i <= picShot.UBound() && static_cast<std::size_t>(i) < PosTop.size(); ++i)
    picShot(i).Top = static_cast<float>(PosTop[static_cast<std::size_t>(i)] - offset);
}

void MainForm::picShot_Click(std::int16_t Index) {
  shell_.basCommon.ShowArg = Index;
  shell_.frmShowPic->ShowModal(*this);
}

}  // namespace orvanta
