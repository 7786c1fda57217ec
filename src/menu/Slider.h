#pragma once

#include <cstdint>
#include <functional>

#include "config/Schema.h"

namespace orvanta {

class Image;
class Shell;
struct MouseEvent;

/// The knobs that the user drags to scroll: one beside lists and pages, one beside screenshots. One set of
/// variables serves both. The view on show decides which knob is live, and each `SuwakInit` overwrites the
/// set. Lengths are pixels.
class Slider {
 public:
  /// Where a knob's settings stand.
  struct Keys {
    KeyRef<Kind::Picture> picture;
    KeyRef<Kind::Double> left, yMin, yMax, yStep;
  };
  /// One of the two knobs, with its bar and what it scrolls.
  struct Knob {
    Image& image;
    Image& bar;
    std::function<void()> scroll;  ///< brings the content to where `SuwakPos` is
    std::int16_t LastPos = 0;      ///< `SuwakPos` at the last scroll; new content does not reset it
  };

  explicit Slider(Shell& shell) : shell_(shell) {}

  std::int32_t YMin = 0, YMax = 0;
  std::int16_t YStep = 0;
  std::int32_t SuwakY = 0, SuwakPos = 0, SuwakRange = 0;
  float SuwakScale = 0;         ///< pixels of the content for one of the knob; 0 means nothing to scroll
  std::int16_t SuwakDir = -1;   ///< 0 up, 1 down, -1 none
  std::int32_t SuwakGrab = -1;  ///< cursor's y less the knob's top at the press, -1 while none is held
  bool SuwakDrag = false;

  /// Lets the user drag the knob. `knob` must live as long as the slider.
  void Attach(Knob& knob);
  /// Reads the knob's settings and shows it with its bar at the start of the travel. A pixel of
  /// the knob moves the content by one until `SetRange`.
  void SuwakInit(const Knob& knob, const Keys& keys);
  /// Sets by how many pixels the content overflows. Without a travel nothing scrolls.
  void SetRange(std::int32_t overflow);
  /// There is nothing to scroll.
  void SetNoRange();
  /// Moves the knob `step` pixels in direction `SuwakDir`, within its travel, and the content with it.
  void MoveSuwak(Knob& knob, std::int32_t step);

 private:
  void MouseDown(const Knob& knob, const MouseEvent& event);
  void MouseMove(Knob& knob, const MouseEvent& event);
  void MouseUp(const Knob& knob);
  void MoveBy(Knob& knob, double pixels);
  void MoveKnob(const Knob& knob, std::int32_t step);

  Shell& shell_;
};

}  // namespace orvanta
