#pragma once

#include <vector>

#include "platform/Geometry.h"

namespace orvanta {

class Canvas;
class Control;
class Form;

/// The unit of a container's child controls.
enum class ScaleMode { Pixels, Twips };

inline constexpr int kTwipsPerPixel = 15;

/// A form or a picture box. Its controls are stacked in the order of their creation, with the elements of an
/// array together.
class Container {
 public:
  explicit Container(ScaleMode scale) : scale_(scale) {}
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;

  virtual Form& OwnerForm() = 0;
  /// Marks `area`, in pixels of this container, to be repainted. A hidden container ignores it.
  virtual void Invalidate(const Rect& area) = 0;
  /// The area of the container, in its own pixels.
  virtual Rect ClientArea() const = 0;

  /// Converts a length or position of a child control to whole pixels, rounding to the nearest with ties to
  /// even.
  int ToPixels(double units) const;
  double FromPixels(int pixels) const {
    return scale_ == ScaleMode::Twips ? pixels * kTwipsPerPixel : pixels;
  }

  void Attach(Control& child);
  void Detach(Control& child);

 protected:
  ~Container() = default;
  /// Paints the children that show in `area`, which is in pixels of the canvas, as `origin` is.
  void PaintChildren(Canvas& canvas, Point origin, const Rect& area) const;
  /// Whether one of the children covers all of `area`, in pixels of the canvas.
  bool Covered(Point origin, const Rect& area) const { return Covering(origin, area) != stack_.end(); }
  /// The topmost control at `p`, in pixels of this container, that takes the mouse; null if there is none.
  Control* ChildAt(Point p) const;

 private:
  using Place = std::vector<Control*>::const_iterator;
  /// The topmost child that covers all of `area`, or the end.
  Place Covering(Point origin, const Rect& area) const;

  const ScaleMode scale_;
  std::vector<Control*> stack_;  // bottom to top
};

}  // namespace orvanta
