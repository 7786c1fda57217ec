#pragma once

#include <string>

#include "platform/Control.h"
#include "platform/Region.h"

namespace orvanta {

enum class WindowKind {
  Main,        ///< has a task-bar entry
  Plain,       ///< no task-bar entry, shown without taking the activation
  Splash,      ///< no task-bar entry, comes to the front
  Modal,       ///< stands before its owner
  FullScreen,  ///< covers the whole screen
};

/// What a form needs of the host: its bare, borderless window. Places are pixels of the screen.
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
  /// Brings a visible window to the front and asks for the activation.
  virtual void Raise() = 0;
  /// The host paints the part by `Form::Paint` when it next takes in input.
  virtual void Invalidate(const Rect& area) = 0;
  /// Paints at once what was invalidated, so that it is on the screen before the program blocks.
  virtual void PaintNow() = 0;
};

}  // namespace orvanta
