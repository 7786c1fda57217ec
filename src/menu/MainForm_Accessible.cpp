// What a screen reader learns about a menu and an entry.

#include "startup/MainForm.h"

namespace orvanta {

AccessibleNode MainForm::AccessibleMenu() const {
  AccessibleNode list =
      AccessibleOf(picTlo, AccessibleRole::List, MenuLevel == 0 ? "Menu główne" : CurrentNode());
  Rect sight = list.place;
  if (imgKreska.Visible) {
    // Labels scroll under the strip.
    const int strip = imgKreska.Bounds().Bottom();
    sight.top += strip;
    sight.height -= strip;
  }
  for (int i = 0; i <= lblPos1.UBound(); ++i) {
    const Label& label = lblPos1(i);
    if (!label.Visible || label.Caption().empty()) continue;
    AccessibleNode item = AccessibleOf(label, AccessibleRole::ListItem, label.Caption);
    item.place = Intersection(item.place, sight);
    item.hovered = Line1(0).Visible && i == hovered_ - 1;
    list.children.push_back(std::move(item));
  }
  return list;
}

void MainForm::AddEntry(Nodes& nodes) const {
  nodes.push_back(AccessibleOf(lblBackTxt, AccessibleRole::Heading, lblBackTxt.Caption));
  for (const Label* text : {&lblNote, &Label1, &lblSystem})
    if (!text->Caption().empty()) nodes.push_back(AccessibleOf(*text, AccessibleRole::Text, text->Caption));
  AddMusic(nodes);
  nodes.push_back(AccessibleShots());
}

AccessibleNode MainForm::AccessibleShots() const {
  AccessibleNode list = AccessibleOf(picShotTlo, AccessibleRole::List, "Zrzuty ekranu");
  for (int i = 0; i <= picShot.UBound(); ++i) {
    const Image& shot = picShot(i);
    if (shot.Visible && shot.Picture())
      list.children.push_back(AccessibleOf(shot, AccessibleRole::ListItem, ShotName(i)));
  }
  return list;
}

std::string MainForm::ShotName(int index) const {
  return "Zrzut ekranu " + std::to_string(index + 1) + " z " + std::to_string(picShot.UBound() + 1);
}

void MainForm::AddKnob(Nodes& nodes, const Image& knob) const {
  if (!knob.Visible || slider.SuwakScale == 0.0F) return;
  AccessibleNode node = AccessibleOf(knob, AccessibleRole::Slider, "Przewijanie");
  node.value = {static_cast<double>(slider.SuwakPos), 0, static_cast<double>(slider.YMax) - slider.YMin};
  nodes.push_back(std::move(node));
}

void MainForm::AddWays(Nodes& nodes) const {
  nodes.push_back(AccessibleOf(imgBack, AccessibleRole::Button, "Wstecz"));
  nodes.push_back(AccessibleOf(imgUp, AccessibleRole::Button, "Do menu głównego"));
}

}  // namespace orvanta
