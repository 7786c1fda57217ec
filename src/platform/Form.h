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

/// How a form is before its `Form_Load`. Width and height in twips.
struct FormDesign {
  std::string name;
  double width = 0;
  double height = 0;
  ScaleMode scale = ScaleMode::Pixels;
  WindowKind window = WindowKind::Main;
  /// Stands in the centre of the screen when it first appears.
  bool centred = true;
};

/// A window of the program. It is loaded hidden, by a `FormSlot`, and destroyed after `Unload`.
class Form : public PropertyOwner, public Container {
 public:
  static constexpr int kNormal = 0, kMinimised = 1;                  ///< of WindowState
  static constexpr int kDefaultPointer = 0, kHourglassPointer = 11;  ///< of MousePointer

  Form(Host& host, const FormDesign& design);
  virtual ~Form();

  Property<double> Left, Top, Width, Height;  ///< in twips, whatever the scale of the controls
  Property<std::string> Caption;
  Property<PicturePtr> Picture;
  Property<bool> Visible;
  Property<int> WindowState;
  Property<int> MousePointer;

  /// Every control, in the order of creation.
  const std::vector<Control*>& Controls() const { return controls_; }

  /// What a screen reader is told of the form as it is now, made anew at each call. Here the window alone.
  virtual AccessibleNode Accessible() const;

  /// Shows the form; one that is visible comes to the front and is activated.
  void Show();
  /// Shows the form and pumps until it has been unloaded. The other forms get no input meanwhile.
  void ShowModal(Form& owner);
  void Refresh();
  /// Runs `Form_Unload` and closes the window. The object lives on until the outermost delivery has returned.
  void Unload();

  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Resize() {}
  virtual void Form_Unload() {}

  // For the toolkit and the hosts.
  Host& TheHost() const { return host_; }
  Form* Owner() const { return owner_; }
  FormWindow& Window() { return *window_; }
  /// The window's place on the screen, in pixels.
  Rect Place() const;
  void Deliver(const FormEvent& event);
  /// Lets go of what is pressed, without a click: the release goes to another window.
  void EndPress();
  virtual void Paint(Canvas& canvas, const Rect& area) const;
  void PaintNow();
  /// Brings the pointer up to date with what lies under the cursor.
  void Settle();
  /// A window of one of its controls takes the activation: that it comes back is no activation of the form.
  void ExpectReturn() { returning_ = true; }
  void Adopt(Control& control) { controls_.push_back(&control); }
  void Forget(Control& control);
  ControlId NextId() { return ++lastId_; }
  std::function<void()> Released;  ///< set by the slot: the form is unloaded

  Form& OwnerForm() override { return *this; }
  void Invalidate(const Rect& area) override;
  Rect ClientArea() const override;
  void PropertyChanged(const void* property) override;

 protected:
  /// The user asked the window manager to close the window. Nothing happens unless a form wants it.
  virtual void CloseRequested() {}
  /// A click that no control took.
  virtual void Form_Click() {}
  void SetOwner(Form& owner);

 private:
  void Centre();
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
  std::optional<EventLoop::Modal> modal_;  // while it is shown modal
  Control* captured_ = nullptr;            // gets the mouse until every button is released
  int held_ = 0;
  int clickable_ = 0;  // those of the held buttons whose release makes a click
  Point cursor_;
  bool cursorInside_ = false;
  bool shownBefore_ = false;
  bool unloading_ = false;
  bool pointerStale_ = false;
  bool returning_ = false;
  Pointer pointer_ = Pointer::Default;
};

}  // namespace orvanta
