// The slider of lists and pages: when it is shown and what it scrolls.

#include <cmath>

#include "startup/Shell.h"

namespace orvanta {

void MainForm::SuwakInit() {
  const Settings& settings = shell_.settings;
  imgSuwakPas.Picture = shell_.LoadPicture(settings.Picture({"SLIDER", "SliderBarB"}));
  imgSuwakPas.Left = settings.Double({"SLIDER", "SliderBarX"});
  imgSuwakPas.Top = settings.Double({"SLIDER", "SliderBarY"});
  slider.SuwakInit(listKnob, {.picture = {"SLIDER", "SliderB"},
                              .left = {"SLIDER", "PosX"},
                              .yMin = {"SLIDER", "YMin"},
                              .yMax = {"SLIDER", "YMax"},
                              .yStep = {"SLIDER", "YStep"}});
}

void MainForm::FitSlider(std::int32_t contentHeight) {
  if (picTlo.Height >= contentHeight) return HideSlider();
  SuwakInit();
  slider.SetRange(CLng(contentHeight - picTlo.Height));
}

void MainForm::HideSlider() {
  imgSuwakPas.Visible = imgSuwak.Visible = false;
  slider.SetNoRange();
}

void MainForm::ScrollList() {
  if (imgPomoc.Visible || imgSeven.Visible) {
    for (Image* page : {&imgPomoc, &imgSeven}) {
      if (page->Visible) page->Top = -(static_cast<float>(slider.SuwakPos) * slider.SuwakScale);
    }
    return;
  }
  const double offset = static_cast<double>(slider.SuwakScale) * slider.SuwakPos;
  // If an entry was opened while the music faded, PosTop may belong to its screenshots.
  for (int i = 0; i <= lblPos1.UBound() && static_cast<std::size_t>(i) < PosTop.size(); ++i) {
    Label& label = lblPos1(i);
    label.Top = std::floor(PosTop[static_cast<std::size_t>(i)] - offset);
    label.ForeColor = LabelColour(label);
  }
}

}  // namespace orvanta
