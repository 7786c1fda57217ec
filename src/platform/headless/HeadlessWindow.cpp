#include "platform/headless/HeadlessWindow.h"

#include "platform/headless/HeadlessHost.h"

namespace orvanta {

HeadlessWindow::HeadlessWindow(HeadlessHost& host, Form& ofForm, WindowKind ofKind)
    : form(ofForm), kind(ofKind), host_(host) {
  host_.windows.push_back(this);
}

HeadlessWindow::~HeadlessWindow() {
  SetVisible(false);
  std::erase(host_.windows, this);
}

bool HeadlessWindow::Covers(Point screen) const {
  if (!visible || minimised || !place.Contains(screen)) return false;
  return !shape || shape->Contains(screen - Point{place.left, place.top});
}

RecordingCanvas HeadlessWindow::Look() const {
  RecordingCanvas canvas;
  form.Paint(canvas, form.ClientArea());
  return canvas;
}

void HeadlessWindow::PaintDirty() {
  if (!visible || minimised || dirty.Empty()) return;
  RecordingCanvas canvas;
  form.Paint(canvas, std::exchange(dirty, {}));
}

void HeadlessWindow::SetVisible(bool to) {
  if (visible == to) return;
  visible = to;
  if (visible) {
    place = form.Place();
    caption = form.Caption;
    dirty = form.ClientArea();
    host_.PutOnTop(*this, kind != WindowKind::Plain);
  } else {
    host_.Lost(*this);
  }
}

void HeadlessWindow::SetMinimised(bool to) {
  minimised = to;
  if (minimised) {
    host_.Lost(*this);
  } else {
    host_.PutOnTop(*this, true);
  }
}

void HeadlessWindow::Raise() { host_.PutOnTop(*this, true); }

}  // namespace orvanta
