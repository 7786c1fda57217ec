#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Canvas.h"
#include "platform/EventLoop.h"
#include "platform/FormEvent.h"
#include "platform/FormWindow.h"
#include "platform/Property.h"

namespace orvanta {

class Host;

/// A form before its `Form_Load`. Width and height are in twips.
struct FormDesign {
  std::string name;
  double width = 0;
  double height = 0;
  ScaleMode scale = ScaleMode::Pixels;
  WindowKind window = WindowKind::Main;
  /// Whether it first appears in the centre of the screen.
  bool centred = true;
};

/// A window of the program. A `FormSlot` loads it, hidden at first; it is destroyed after `Unload`.
class Form : public PropertyOwner, public Container {
 public:
  static constexpr int kNormal = 0, kMinimised = 1;                  ///< values of WindowState
  static constexpr int kDefaultPointer = 0, kHourglassPointer = 11;  ///< values of MousePointer

  Form(Host& host, const FormDesign& design);
  virtual ~Form();

  Property<double> Left, Top, Width, Height;  ///< in twips, whatever the unit of the controls
  Property<std::string> Caption;
  Property<PicturePtr> Picture;
  Property<bool> Visible;
  Property<int> WindowState;
  Property<int> MousePointer;

  /// Every control, in the order of creation.
  const std::vector<Control*>& Controls() const { return controls_; }

  /// What a screen reader learns about the form as it is now; made anew at each call. The default is the
  /// window alone.
  virtual AccessibleNode Accessible() const;

  /// Shows the form. If it is visible already, brings it to the front and activates it.
  void Show();
  /// Shows the form and pumps until it is unloaded. Meanwhile the other forms get no input.
  void ShowModal(Form& owner);
  void Refresh();
  /// Runs `Form_Unload` and closes the window. The object exists until the outermost delivery has returned.
  void Unload();

  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Resize() {}
  virtual void Form_Unload() {}

  // Used by the toolkit and the hosts.
  Host& TheHost() const { return host_; }
  Form* Owner() const { return owner_; }
  FormWindow& Window() { return *window_; }
  /// The position and size of the window on the screen, in pixels.
  Rect Place() const;
  void Deliver(const FormEvent& event);
  /// Ends a press without a click, since the release goes to another window.
  void EndPress();
  virtual void Paint(Canvas& canvas, const Rect& area) const;
  void PaintNow();
  /// Updates the pointer for the control that is now under the cursor.
  void Settle();
  /// A window of one of its controls takes the activation: that it comes back is no activation of the form.
  void ExpectReturn() { returning_ = true; }
  void Adopt(Control& control) { controls_.push_back(&control); }
  void Forget(Control& control);
  ControlId NextId() { return ++lastId_; }
  std::function<void()> Released;  ///< set by the slot; called when the form is unloaded

  Form& OwnerForm() override { return *this; }
  void Invalidate(const Rect& area) override;
  Rect ClientArea() const override;
  void PropertyChanged(const void* property) override;

 protected:
  /// The user has asked the window manager to close the window. Does nothing unless overridden.
  virtual void CloseRequested() {}
  /// The user has clicked where no control takes the mouse.
  virtual void Form_Click() {}
  void SetOwner(Form& owner);

 private:
  void Centre();
  void PaintGround(Canvas& canvas, const Rect& area) const;
  void VisibleChanged();
  void MouseMoved(Point place, int held);
  void MousePressed(const FormEvent& event);
  void MouseReleased(Point place, int button, int held);
  void StillHeld(int held);
  void SetWindowState(int state);
  void Invoke(const FormEvent& event);
  Control* ControlAt(Point place) { return ChildAt(place); }

  Host& host_;
  const FormDesign design_;
  std::vector<Control*> controls_;
  ControlId lastId_ = kWholeForm;
  std::unique_ptr<FormWindow> window_;
  Form* owner_ = nullptr;
  std::optional<EventLoop::Modal> modal_;  // while it is shown modally
  Control* captured_ = nullptr;            // gets the mouse until all buttons are released
  int held_ = 0;
  int clickable_ = 0;  // the held buttons whose release counts as a click
  Point cursor_;
  bool cursorInside_ = false;
  bool shownBefore_ = false;
  bool unloading_ = false;
  bool pointerStale_ = false;
  bool returning_ = false;
  Pointer pointer_ = Pointer::Default;
};

}  // namespace orvanta
