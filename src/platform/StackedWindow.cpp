#include "platform/StackedWindow.h"

#include <utility>

#include "platform/StackingHost.h"

namespace orvanta {

StackedWindow::StackedWindow(StackingHost& host, Form& ofForm, WindowKind ofKind)
    : form(ofForm), kind(ofKind), host_(host) {
  host_.windows.push_back(this);
}

StackedWindow::~StackedWindow() {
  if (visible) host_.Lost(*this);
  std::erase(host_.windows, this);
}

bool StackedWindow::Covers(Point screen) const {
  if (!visible || minimised || !place.Contains(screen)) return false;
  return !shape || shape->Contains(screen - Point{place.left, place.top});
}

void StackedWindow::PaintDirty() {
  if (!visible || minimised || dirty.Empty()) return;
  Paint(std::exchange(dirty, {}));
}

void StackedWindow::SetVisible(bool to) {
  if (visible == to) return;
  visible = to;
  if (visible) {
    place = form.Place();
    dirty = form.ClientArea();
    host_.PutOnTop(*this, kind != WindowKind::Plain);
  } else {
    host_.Lost(*this);
  }
}

void StackedWindow::SetMinimised(bool to) {
  minimised = to;
  if (minimised) {
    host_.Lost(*this);
  } else {
    host_.PutOnTop(*this, true);
  }
}

void StackedWindow::Raise() { host_.PutOnTop(*this, true); }

}  // namespace orvanta
