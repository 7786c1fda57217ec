#pragma once

#include <cstdint>
#include <functional>

#include "config/Schema.h"

namespace orvanta {

class Image;
class Shell;
struct MouseEvent;

/// The knobs that the user drags to scroll: one for lists and pages, one for screenshots. Both share one set
/// of variables. The current view decides which knob is in use, and each `SuwakInit` overwrites the
/// variables. Lengths are in pixels.
class Slider {
 public:
  /// The keys of a knob's settings.
  struct Keys {
    KeyRef<Kind::Picture> picture;
    KeyRef<Kind::Double> left, yMin, yMax, yStep;
  };
  /// One of the two knobs, with its bar and the content that it scrolls.
  struct Knob {
    Image& image;
    Image& bar;
    std::function<void()> scroll;  ///< moves the content to match `SuwakPos`
    std::int16_t LastPos = 0;      ///< `SuwakPos` at the last scroll; new content does not reset it
  };

  explicit Slider(Shell& shell) : shell_(shell) {}

  std::int32_t YMin = 0, YMax = 0;
  std::int16_t YStep = 0;
  std::int32_t SuwakY = 0, SuwakPos = 0, SuwakRange = 0;
  float SuwakScale = 0;         ///< pixels of content per pixel of the knob; 0 if nothing scrolls
  std::int16_t SuwakDir = -1;   ///< 0 up, 1 down, -1 none
  std::int32_t SuwakGrab = -1;  ///< the cursor's y minus the knob's top at the press; -1 if no knob is held
  bool SuwakDrag = false;

  /// Lets the user drag the knob. `knob` must live as long as the slider.
  void Attach(Knob& knob);
  /// Reads the knob's settings and shows the knob and its bar, at the start of the travel. Until `SetRange`
  /// is called, a pixel of the knob moves the content by one pixel.
  void SuwakInit(const Knob& knob, const Keys& keys);
  /// Sets by how many pixels the content overflows. If the knob cannot travel, nothing scrolls.
  void SetRange(std::int32_t overflow);
  /// Sets that there is nothing to scroll.
  void SetNoRange();
  /// Moves the knob by `step` pixels in direction `SuwakDir`, within its travel, and scrolls the content.
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
