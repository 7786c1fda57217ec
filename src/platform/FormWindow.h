#pragma once

#include <string>

#include "platform/Control.h"
#include "platform/Region.h"

namespace orvanta {

enum class WindowKind {
  Main,        ///< has a task-bar entry
  Plain,       ///< no task-bar entry, shown without taking the activation
  Splash,      ///< no task-bar entry, comes to the front
  Modal,       ///< stays in front of its owner
  FullScreen,  ///< covers the whole screen
};

/// What a form needs from the host: its bare, borderless window. Positions are in screen pixels.
class FormWindow {
 public:
  virtual ~FormWindow() = default;
  virtual void SetPlace(const Rect& place) = 0;
  virtual void SetShape(const Region& shape) = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  virtual void SetPointer(Pointer pointer) = 0;
  virtual void SetOwner(Form& owner) = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual void SetMinimised(bool minimised) = 0;
  /// Brings a visible window to the front and asks for it to be activated.
  virtual void Raise() = 0;
  /// Marks an area, which the host then paints with `Form::Paint` when it next takes in input.
  virtual void Invalidate(const Rect& area) = 0;
  /// Paints at once what has been marked, so that it is on the screen before the program blocks.
  virtual void PaintNow() = 0;
};

}  // namespace orvanta
