#pragma once

#include <vector>

#include "platform/Accessible.h"

namespace orvanta {

/// A change in a window that screen readers are notified about.
struct AccessibleChange {
  enum class Kind {
    Gone,       ///< removed, with everything in it
    Came,       ///< added, with everything in it
    Renamed,    ///< its name
    Described,  ///< its detail
    Moved,      ///< its value
    Pressed,    ///< it has been pressed or released
    Enabled     ///< it has become available or unavailable
  };
  Kind kind;
  ControlId id;
  bool operator==(const AccessibleChange&) const = default;
};

/// The changes from one tree of a window to the next: first what was removed, then what was added, then the
/// rest, in the order of the trees.
std::vector<AccessibleChange> AccessibleChanges(const AccessibleNode& before, const AccessibleNode& after);

/// The node that a screen reader should speak about: the one under the mouse; otherwise `last`, as long as
/// the same view is shown; otherwise the first node of the view, or the window itself if it is empty. `shown`
/// is the tree when `last` was chosen.
ControlId AccessibleFocus(const AccessibleNode& shown, ControlId last, const AccessibleNode& now);

}  // namespace orvanta
