#pragma once

#include <vector>

#include "platform/Host.h"
#include "platform/StackedWindow.h"

namespace orvanta {

/// A host without a window manager. It keeps the order of its windows and which one is active, and finds the
/// window under the mouse.
class StackingHost : public Host {
 public:
  std::vector<StackedWindow*> windows;  ///< from the bottom of the stack to its top
  Form* active = nullptr;

  // The mouse, which stays on the screen. Positions are in screen pixels.
  void MoveMouse(Point to);
  void Press(int button = kLeftButton) { Press(button, FormEvent::Kind::MousePress); }
  /// The second press of a double click.
  void PressAgain(int button = kLeftButton) { Press(button, FormEvent::Kind::MouseSecondPress); }
  void Release(int button = kLeftButton);
  /// A release that is not reported to any form, as on desktops when the window is blocked by a modal one.
  void ReleaseUntold(int button = kLeftButton);

  // What a user does by means of a window manager.
  void Activate(Form& form);
  void ActivateOther() { SetActive(nullptr); }
  void Minimise(Form& form);
  void Restore(Form& form);
  void RequestClose(Form& form) { Loop().Post({FormEvent::Kind::Close, &form}); }

  /// What a screen reader learns about the windows on the screen, from the top down.
  std::vector<AccessibleNode> AccessibleWindows() const;

  StackedWindow& WindowOf(const Form& form) const;
  /// Used by the windows: order and activation.
  void PutOnTop(StackedWindow& window, bool activate);
  void Lost(StackedWindow& window);

  Point CursorPos() const override { return mouse_; }
  Form* ActiveForm() const override { return active; }

 protected:
  void PaintWindows();

 private:
  void SetActive(Form* form);
  StackedWindow* UnderMouse() const;
  void Press(int button, FormEvent::Kind kind);
  void PostMouse(FormEvent::Kind kind, int button = 0);

  Point mouse_;
  int held_ = 0;
  Form* capture_ = nullptr;  // gets the mouse until all buttons are released
};

}  // namespace orvanta
