#include "platform/headless/HeadlessWindow.h"

namespace orvanta {

RecordingCanvas HeadlessWindow::Painted() const {
  RecordingCanvas canvas;
  form.Paint(canvas, form.ClientArea());
  return canvas;
}

void HeadlessWindow::SetVisible(bool to) {
  if (to) caption = form.Caption;
  StackedWindow::SetVisible(to);
}

void HeadlessWindow::Paint(const Rect& area) {
  RecordingCanvas canvas;
  form.Paint(canvas, area);
}

}  // namespace orvanta
