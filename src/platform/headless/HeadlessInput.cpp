// The scripted mouse and the order and activation of windows.

#include <algorithm>

#include "platform/headless/HeadlessHost.h"

namespace orvanta {

HeadlessWindow& HeadlessHost::WindowOf(const Form& form) const {
  for (HeadlessWindow* window : windows) {
    if (&window->form == &form) return *window;
  }
  throw std::logic_error("no window for this form");
}

HeadlessWindow* HeadlessHost::UnderMouse() const {
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if ((*window)->Covers(mouse_)) return *window;
  }
  return nullptr;
}

void HeadlessHost::PostMouse(FormEvent::Kind kind, int button) {
  Form* form = capture_;
  if (!form) {
    if (HeadlessWindow* window = UnderMouse()) form = &window->form;
  }
  if (!form) return;
  const Rect place = WindowOf(*form).place;
  Loop().Post({kind, form, mouse_ - Point{place.left, place.top}, button, held_});
}

void HeadlessHost::MoveMouse(Point to) {
  mouse_ = {std::clamp(to.x, 0, screen.width - 1), std::clamp(to.y, 0, screen.height - 1)};
  PostMouse(FormEvent::Kind::MouseMove);
}

void HeadlessHost::Press(int button) { Press(button, FormEvent::Kind::MousePress); }

void HeadlessHost::Press(int button, FormEvent::Kind kind) {
  held_ |= button;
  HeadlessWindow* window = UnderMouse();
  if (!capture_) capture_ = window ? &window->form : nullptr;
  if (window) PutOnTop(*window, true);
  if (!window && !capture_) SetActive(nullptr);
  PostMouse(kind, button);
}

void HeadlessHost::Release(int button) {
  held_ &= ~button;
  PostMouse(FormEvent::Kind::MouseRelease, button);
  if (held_ == 0) capture_ = nullptr;
}

void HeadlessHost::ReleaseUntold(int button) {
  held_ &= ~button;
  if (held_ == 0) capture_ = nullptr;
}

void HeadlessHost::Click(Point at) {
  MoveMouse(at);
  Press();
  Release();
}

void HeadlessHost::DoubleClick(Point at) {
  Click(at);
  Press(kLeftButton, FormEvent::Kind::MouseSecondPress);
  Release();
}

void HeadlessHost::Activate(Form& form) { PutOnTop(WindowOf(form), true); }

void HeadlessHost::Minimise(Form& form) {
  HeadlessWindow& window = WindowOf(form);
  window.minimised = true;
  Lost(window);
  Loop().Post({FormEvent::Kind::Minimise, &form});
}

void HeadlessHost::Restore(Form& form) {
  HeadlessWindow& window = WindowOf(form);
  window.minimised = false;
  Loop().Post({FormEvent::Kind::Restore, &form});
  PutOnTop(window, true);
}

void HeadlessHost::PutOnTop(HeadlessWindow& window, bool activate) {
  std::erase(windows, &window);
  windows.push_back(&window);
  // A window stands before its owner and takes the activation in its place.
  for (HeadlessWindow* owned : windows) {
    if (owned->owner == &window.form && owned->visible) return PutOnTop(*owned, activate);
  }
  if (activate && window.visible && !window.minimised) SetActive(&window.form);
}

void HeadlessHost::Lost(HeadlessWindow& window) {
  if (capture_ == &window.form) capture_ = nullptr;
  if (active != &window.form) return;
  // The activation falls to the owner of a modal window, else to the topmost window of the program.
  Form* next = window.owner;
  for (auto other = windows.rbegin(); !next && other != windows.rend(); ++other) {
    if (*other != &window && (*other)->visible && !(*other)->minimised) next = &(*other)->form;
  }
  SetActive(window.minimised ? nullptr : next);
}

void HeadlessHost::SetActive(Form* form) {
  if (active == form) return;
  active = form;
  if (form) Loop().Post({FormEvent::Kind::Activate, form});
}

}  // namespace orvanta
