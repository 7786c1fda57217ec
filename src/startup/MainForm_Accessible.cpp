// What a screen reader learns about the main window: the current view, the ways out of it and the buttons.

#include "startup/MainForm.h"

namespace orvanta {

AccessibleNode MainForm::Accessible() const {
  AccessibleNode window = Form::Accessible();
  Nodes& nodes = window.children;
  if (!picTlo.Visible) {
    AddEntry(nodes);
  } else if (imgPomoc.Visible) {
    nodes.push_back(AccessibleOf(imgPomoc, AccessibleRole::Page, "Strona pomocy"));
  } else if (imgSeven.Visible) {
    nodes.push_back(AccessibleOf(imgSeven, AccessibleRole::Page, "Strona o płycie"));
  } else {
    nodes.push_back(AccessibleMenu());
  }
  AddKnob(nodes, picTlo.Visible ? imgSuwak : imgSSuwak);
  AddWays(nodes);
  AddButtons(nodes);
  return window;
}

}  // namespace orvanta
