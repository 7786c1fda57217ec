#pragma once

#include "platform/Accessible.h"
#include "platform/Geometry.h"

namespace orvanta {

class Form;

/// What a host tells of one form's window.
struct FormEvent {
  enum class Kind {
    MouseMove,         ///< `place` is the cursor in the form
    MousePress,        ///< `button` is the one that was pressed
    MouseSecondPress,  ///< the same where the desktop takes it for the second press of a double click
    MouseRelease,      ///< `button` is the one that was released
    MouseLeave,
    Activate,
    Minimise,
    Restore,
    Moved,     ///< `place` is the window's new place on the screen, not asked for by the program
    Close,     ///< the user asks the window manager to close the window
    Invoke,    ///< an assistive technology presses `control`
    SetValue,  ///< an assistive technology sets the value of `control` to `value`
  };
  Kind kind;
  Form* form;
  Point place{};
  int button = 0;
  int held = 0;  ///< bits of the buttons that are down after it, whichever window was told of their presses
  ControlId control = kWholeForm;
  double value = 0;

  bool IsInput() const { return kind <= Kind::MouseLeave || kind >= Kind::Close; }
};

}  // namespace orvanta
