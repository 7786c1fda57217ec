#pragma once

#include <vector>

#include "platform/Host.h"
#include "platform/StackedWindow.h"

namespace orvanta {

/// A host without a window manager: it keeps the order of its windows and the activation itself, and finds
/// the window that the mouse meets.
class StackingHost : public Host {
 public:
  std::vector<StackedWindow*> windows;  ///< from the bottom of the screen to its top
  Form* active = nullptr;

  // The mouse, which does not leave the screen. Places are pixels of the screen.
  void MoveMouse(Point to);
  void Press(int button = kLeftButton) { Press(button, FormEvent::Kind::MousePress); }
  /// The second press of a double click.
  void PressAgain(int button = kLeftButton) { Press(button, FormEvent::Kind::MouseSecondPress); }
  void Release(int button = kLeftButton);
  /// A release of which no form is told, as desktops withhold that of a window that a modal one blocks.
  void ReleaseUntold(int button = kLeftButton);

  // What a user does with a window manager.
  void Activate(Form& form);
  void ActivateOther() { SetActive(nullptr); }
  void Minimise(Form& form);
  void Restore(Form& form);
  void RequestClose(Form& form) { Loop().Post({FormEvent::Kind::Close, &form}); }

  /// What a screen reader is told of the windows on the screen, from the top one down.
  std::vector<AccessibleNode> AccessibleWindows() const;

  StackedWindow& WindowOf(const Form& form) const;
  /// For the windows: order and activation.
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
  Form* capture_ = nullptr;  // gets the mouse until every button is released
};

}  // namespace orvanta
