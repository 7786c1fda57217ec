#pragma once

#include "platform/Accessible.h"
#include "platform/Geometry.h"

namespace orvanta {

class Form;

/// What a host reports about the window of a form.
struct FormEvent {
  enum class Kind {
    MouseMove,         ///< `place` is the cursor in the form
    MousePress,        ///< `button` is the one that was pressed
    MouseSecondPress,  ///< the same, if the desktop considers it the second press of a double click
    MouseRelease,      ///< `button` is the one that was released
    MouseLeave,
    Activate,
    Minimise,
    Restore,
    Moved,     ///< `place` is the window's new position, which the program did not ask for
    Close,     ///< the user asks the window manager to close the window
    Invoke,    ///< an assistive technology presses `control`
    SetValue,  ///< an assistive technology sets the value of `control` to `value`
  };
  Kind kind;
  Form* form;
  Point place{};
  int button = 0;
  int held = 0;  ///< bits of the buttons held after it, whichever window got their presses
  ControlId control = kWholeForm;
  double value = 0;

  bool IsInput() const { return kind <= Kind::MouseLeave || kind >= Kind::Close; }
};

}  // namespace orvanta
