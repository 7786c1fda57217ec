#include "platform/web/WebWindow.h"

#include <cstdint>
#include <vector>

#include "platform/web/Browser.h"
#include "platform/web/WebCanvas.h"
#include "platform/web/WebHost.h"

namespace orvanta {

WebWindow::WebWindow(WebHost& host, Form& ofForm, WindowKind ofKind)
    : StackedWindow(host, ofForm, ofKind), number_(BrowserOpenWindow(ofKind == WindowKind::FullScreen)) {}

WebWindow::~WebWindow() { BrowserCloseWindow(number_); }

void WebWindow::SetPlace(const Rect& to) {
  const bool sized = to.width != place.width || to.height != place.height;
  StackedWindow::SetPlace(to);
  BrowserPlaceWindow(number_, to.left, to.top, to.width, to.height);
  // A canvas of another size is empty.
  if (sized) dirty = {0, 0, to.width, to.height};
}

void WebWindow::SetShape(const Region& to) {
  StackedWindow::SetShape(to);
  std::vector<std::int32_t> numbers;
  for (const Rect& r : to.Rects()) numbers.insert(numbers.end(), {r.left, r.top, r.width, r.height});
  BrowserShapeWindow(number_, numbers.data(), static_cast<int>(numbers.size() / 4));
  dirty = form.ClientArea();
}

void WebWindow::SetCaption(const std::string& to) { BrowserNameWindow(number_, to.c_str()); }

void WebWindow::SetPointer(Pointer to) { BrowserSetPointer(number_, static_cast<int>(to)); }

void WebWindow::SetVisible(bool to) {
  if (to && !visible) SetPlace(form.Place());
  StackedWindow::SetVisible(to);
  if (to) PaintDirty();
  BrowserShowWindow(number_, to);
}

void WebWindow::SetMinimised(bool to) {
  StackedWindow::SetMinimised(to);
  BrowserMinimiseWindow(number_, to);
}

void WebWindow::Paint(const Rect& area) {
  WebCanvas canvas(number_, area);
  form.Paint(canvas, area);
}

}  // namespace orvanta
