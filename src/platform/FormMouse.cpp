// How a form handles the events of its window.

#include <algorithm>
#include <utility>

#include "platform/Form.h"
#include "platform/Host.h"

namespace orvanta {

namespace {

/// The upper left corner of a control, in pixels of the form.
Point OriginOf(const Control& control) {
  Point origin{control.Bounds().left, control.Bounds().top};
  if (const auto* box = dynamic_cast<const Control*>(&control.Parent())) origin = origin + OriginOf(*box);
  return origin;
}

/// Calls a copy of the handler, since the handler may unload the control that holds it.
template <class Handler, class... Arguments>
void Call(const Handler& handler, const Arguments&... arguments) {
  if (const Handler copy = handler) copy(arguments...);
}

}  // namespace

void Form::Deliver(const FormEvent& event) {
  using Kind = FormEvent::Kind;
  // A click that was made before the window disappeared is not meant for what the user sees now.
  const bool shown = Visible && WindowState != kMinimised;
  if (!shown) clickable_ = 0;
  if (!shown && event.kind < Kind::MouseRelease) return;
  switch (event.kind) {
    case Kind::MouseMove: MouseMoved(event.place, event.held); break;
    case Kind::MousePress:
    case Kind::MouseSecondPress: MousePressed(event); break;
    case Kind::MouseRelease: MouseReleased(event.place, event.button, event.held); break;
    case Kind::MouseLeave: cursorInside_ = false; break;
    case Kind::Activate:
      if (!std::exchange(returning_, false)) Form_Activate();
      break;
    case Kind::Minimise: SetWindowState(kMinimised); break;
    case Kind::Restore: SetWindowState(kNormal); break;
    case Kind::Moved:
      Left.SetQuietly(event.place.x * kTwipsPerPixel);
      Top.SetQuietly(event.place.y * kTwipsPerPixel);
      break;
    case Kind::Close: CloseRequested(); break;
    case Kind::Invoke:
    case Kind::SetValue: Invoke(event); break;
  }
  Settle();
}

void Form::EndPress() {
  held_ = 0;
  if (Control* const control = std::exchange(captured_, nullptr)) Call(control->MouseUp, MouseEvent{});
}

void Form::StillHeld(int held) {
  // Another window got the release of a button that is no longer reported as held.
  held_ &= held;
  if (held_ == 0) EndPress();
}

void Form::MouseMoved(Point place, int held) {
  cursor_ = place;
  cursorInside_ = true;
  pointerStale_ = true;
  StillHeld(held);
  Control* target = captured_ ? captured_ : ControlAt(place);
  if (!target) return;
  const Point inside = place - OriginOf(*target);
  Call(target->MouseMove, MouseEvent{held, static_cast<double>(inside.x), static_cast<double>(inside.y)});
}

void Form::MousePressed(const FormEvent& event) {
  cursor_ = event.place;
  StillHeld(event.held & ~event.button);
  if (held_ == 0) captured_ = ControlAt(cursor_);
  held_ |= event.button;
  // A user who double-clicks wants the effect of one click, whatever that click has put under the cursor.
  const bool first = event.kind == FormEvent::Kind::MousePress;
  clickable_ = first ? clickable_ | event.button : clickable_ & ~event.button;
  if (!captured_) return;
  const Point inside = cursor_ - OriginOf(*captured_);
  Call(captured_->MouseDown,
       MouseEvent{event.button, static_cast<double>(inside.x), static_cast<double>(inside.y)});
}

void Form::MouseReleased(Point place, int button, int held) {
  cursor_ = place;
  const bool wasHeld = (held_ & clickable_ & button) != 0;
  held_ &= held & ~button;
  Control* target = captured_;
  if (held_ == 0) captured_ = nullptr;
  pointerStale_ = true;
  if (!target) {
    if (wasHeld && button == kLeftButton && ClientArea().Contains(place) && !ControlAt(place)) Form_Click();
    return;
  }
  const Point inside = place - OriginOf(*target);
  const Rect box = target->Bounds();
  const bool clicked = wasHeld && button == kLeftButton && Rect{0, 0, box.width, box.height}.Contains(inside);
  // Copied before the release is delivered, since its handler may unload the control.
  const auto click = target->Click;
  Call(target->MouseUp, MouseEvent{button, static_cast<double>(inside.x), static_cast<double>(inside.y)});
  if (clicked) Call(click);
}

void Form::Invoke(const FormEvent& event) {
  if (!Visible || WindowState == kMinimised) return;
  // The control may have gone, or been covered by another view, since its user heard of it.
  const AccessibleNode window = Accessible();
  const AccessibleNode* node = FindAccessible(window, event.control);
  if (!node || node->unavailable) return;
  const auto control = std::find_if(controls_.begin(), controls_.end(),
                                    [&](const Control* each) { return each->Id == event.control; });
  if (event.kind == FormEvent::Kind::SetValue) {
    if (node->settable && control != controls_.end()) Call((*control)->SetValue, event.value);
  } else if (node->clickable) {
    control != controls_.end() ? Call((*control)->Click) : Form_Click();
  }
}

void Form::SetWindowState(int state) {
  if (WindowState == state) return;
  WindowState.SetQuietly(state);
  EndPress();
  Form_Resize();
}

void Form::Settle() {
  if (!std::exchange(pointerStale_, false)) return;
  Pointer wanted = Pointer::Default;
  if (MousePointer == kHourglassPointer) {
    wanted = Pointer::Hourglass;
  } else if (captured_) {
    wanted = captured_->PointerHere();
  } else if (const Control* control = cursorInside_ ? ControlAt(cursor_) : nullptr) {
    wanted = control->PointerHere();
  }
  if (wanted == pointer_) return;
  pointer_ = wanted;
  window_->SetPointer(wanted);
}

}  // namespace orvanta
