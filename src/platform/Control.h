#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/Accessible.h"
#include "platform/Container.h"
#include "platform/Property.h"

namespace orvanta {

enum class Pointer { Default, Hourglass, Hand, OpenHand, ClosedHand };

/// Bits of the held buttons; also the number of the button that a press or release is about.
enum MouseButton : int { kLeftButton = 1, kRightButton = 2, kMiddleButton = 4 };

struct MouseEvent {
  int Button = 0;
  double X = 0;  ///< in the control's own pixels
  double Y = 0;
};

/// Anything on a form. `Index` is -1 outside a control array.
class Control : public PropertyOwner {
 public:
  Control(Container& parent, std::string name, std::int16_t index = -1);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string Name;
  const std::int16_t Index;
  const ControlId Id;
  Property<bool> Visible;

  /// Paints the control at once, so that it is on the screen before the program blocks.
  void Refresh();

  /// In pixels of the parent.
  virtual Rect Bounds() const = 0;
  virtual void Paint(Canvas& canvas, Point origin, const Rect& area) const = 0;
  /// Whether the control hides everything below it in `area`, in pixels of the parent, so that nothing below
  /// needs to be painted.
  virtual bool Covers(const Rect&) const { return false; }
  /// The control at `p`, in pixels of the parent, that takes the mouse: this control, one inside it, or null.
  virtual Control* Hit(Point) { return nullptr; }
  virtual Pointer PointerHere() const { return Pointer::Default; }

  Container& Parent() const { return parent_; }
  void PropertyChanged(const void* property) override;

  std::function<void()> Click;
  std::function<void(const MouseEvent&)> MouseDown, MouseMove, MouseUp;
  /// Of a control with a value, such as a slider's knob: brings the value to this one, as a drag does.
  std::function<void(double)> SetValue;

 protected:
  /// Marks the area that the control covered before and the one that it covers now.
  void Touch();

 private:
  Container& parent_;
  Rect extent_;  // the area that it covered at the last Touch; empty while hidden
};

/// A control with a position and a size, in the scale of its parent.
class BoxControl : public Control {
 public:
  BoxControl(Container& parent, std::string name, std::int16_t index = -1);

  Property<double> Left, Top, Width, Height;
  /// A disabled control lets the mouse through to the controls below it.
  Property<bool> Enabled;
  Property<Pointer> MouseIcon;

  void Move(double left, double top, double width, double height);
  Rect Bounds() const override;
  Control* Hit(Point p) override;
  Pointer PointerHere() const override { return MouseIcon; }

 protected:
  void CopyDesign(const BoxControl& from);
};

}  // namespace orvanta
