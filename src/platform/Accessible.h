#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Geometry.h"

namespace orvanta {

class Control;

/// Identifies a control as long as its form exists; it is never used again for another one.
using ControlId = std::uint32_t;
/// The form itself.
inline constexpr ControlId kWholeForm = 0;

enum class AccessibleRole {
  Window,
  Decoration,  ///< a window to be left out
  List,
  ListItem,
  Button,
  Slider,
  Heading,
  Text,
  Picture,
  Page,  ///< a picture of text, which cannot be read aloud
  ProgressBar
};

struct AccessibleValue {
  double now = 0;
  double least = 0;
  double most = 0;
};

/// What a screen reader learns about a window or something in it. Texts are UTF-8.
struct AccessibleNode {
  ControlId id = kWholeForm;
  AccessibleRole role = AccessibleRole::Window;
  std::string name{};
  /// What the name does not say, such as the time in a film.
  std::string detail{};
  /// The visible part, in pixels of the form. Empty if it has been scrolled out of view.
  Rect place{};
  bool unavailable = false;
  /// Whether the mouse is over it and the shell shows that.
  bool hovered = false;
  /// For a button that stays pressed: whether it is pressed.
  std::optional<bool> pressed{};
  /// Whether it can be pressed, which has the effect of a click.
  bool clickable = false;
  std::optional<AccessibleValue> value{};
  /// Whether the value can be set, which has the effect of a drag.
  bool settable = false;
  std::vector<AccessibleNode> children{};
};

/// The node of a control: its position, and whether it can be clicked or dragged. Blanks around the name are
/// removed.
AccessibleNode AccessibleOf(const Control& control, AccessibleRole role, const std::string& name);

/// The node of a control in `tree` or below; null if it is not there.
const AccessibleNode* FindAccessible(const AccessibleNode& tree, ControlId id);

/// The tree as text, with a line for each node:
///   window "Atlas"
///     list "Menu"
///       item "Gry" hovered
std::string AccessibleListing(const AccessibleNode& tree);

}  // namespace orvanta
