#include "platform/StackingHost.h"

#include <algorithm>
#include <stdexcept>

namespace orvanta {

StackedWindow& StackingHost::WindowOf(const Form& form) const {
  for (StackedWindow* window : windows) {
    if (&window->form == &form) return *window;
  }
  throw std::logic_error("no window for this form");
}

StackedWindow* StackingHost::UnderMouse() const {
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if ((*window)->Covers(mouse_)) return *window;
  }
  return nullptr;
}

void StackingHost::PostMouse(FormEvent::Kind kind, int button) {
  Form* form = capture_;
  if (!form) {
    if (StackedWindow* window = UnderMouse()) form = &window->form;
  }
  if (!form) return;
  const Rect place = WindowOf(*form).place;
  Loop().Post({kind, form, mouse_ - Point{place.left, place.top}, button, held_});
}

void StackingHost::MoveMouse(Point to) {
  const Size screen = ScreenSize();
  mouse_ = {std::clamp(to.x, 0, screen.width - 1), std::clamp(to.y, 0, screen.height - 1)};
  PostMouse(FormEvent::Kind::MouseMove);
}

void StackingHost::Press(int button, FormEvent::Kind kind) {
  held_ |= button;
  StackedWindow* window = UnderMouse();
  if (!capture_) capture_ = window ? &window->form : nullptr;
  if (window) PutOnTop(*window, true);
  if (!window && !capture_) SetActive(nullptr);
  PostMouse(kind, button);
}

void StackingHost::Release(int button) {
  held_ &= ~button;
  PostMouse(FormEvent::Kind::MouseRelease, button);
  if (held_ == 0) capture_ = nullptr;
}

void StackingHost::ReleaseUntold(int button) {
  held_ &= ~button;
  if (held_ == 0) capture_ = nullptr;
}

void StackingHost::Activate(Form& form) { PutOnTop(WindowOf(form), true); }

void StackingHost::Minimise(Form& form) {
  StackedWindow& window = WindowOf(form);
  window.minimised = true;
  Lost(window);
  Loop().Post({FormEvent::Kind::Minimise, &form});
}

void StackingHost::Restore(Form& form) {
  StackedWindow& window = WindowOf(form);
  window.minimised = false;
  Loop().Post({FormEvent::Kind::Restore, &form});
  PutOnTop(window, true);
}

std::vector<AccessibleNode> StackingHost::AccessibleWindows() const {
  std::vector<AccessibleNode> trees;
  for (auto at = windows.rbegin(); at != windows.rend(); ++at) {
    const StackedWindow* window = *at;
    if (!window->visible || window->minimised) continue;
    trees.push_back(window->form.Accessible());
    if (trees.back().role == AccessibleRole::Decoration) trees.pop_back();
  }
  return trees;
}

void StackingHost::PaintWindows() {
  for (StackedWindow* window : windows) window->PaintDirty();
}

void StackingHost::PutOnTop(StackedWindow& window, bool activate) {
  std::erase(windows, &window);
  windows.push_back(&window);
  // A window stays in front of its owner and is activated instead of it.
  for (StackedWindow* owned : windows) {
    if (owned->owner == &window.form && owned->visible) return PutOnTop(*owned, activate);
  }
  if (activate && window.visible && !window.minimised) SetActive(&window.form);
}

void StackingHost::Lost(StackedWindow& window) {
  if (capture_ == &window.form) capture_ = nullptr;
  if (active != &window.form) return;
  // The owner of a modal window becomes active; otherwise the topmost window of the program does.
  Form* next = window.owner;
  for (auto other = windows.rbegin(); !next && other != windows.rend(); ++other) {
    if (*other != &window && (*other)->visible && !(*other)->minimised) next = &(*other)->form;
  }
  SetActive(window.minimised ? nullptr : next);
}

void StackingHost::SetActive(Form* form) {
  if (active == form) return;
  active = form;
  if (form) Loop().Post({FormEvent::Kind::Activate, form});
}

}  // namespace orvanta
