#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Geometry.h"

namespace orvanta {

class Control;

/// Names a control for as long as its form lives; no later one gets the same.
using ControlId = std::uint32_t;
/// The form itself.
inline constexpr ControlId kWholeForm = 0;

enum class AccessibleRole {
  Window,
  Decoration,  ///< a window that is left out
  List,
  ListItem,
  Button,
  Slider,
  Heading,
  Text,
  Picture,
  Page,  ///< a picture of text, which nobody can read out
  ProgressBar
};

struct AccessibleValue {
  double now = 0;
  double least = 0;
  double most = 0;
};

/// What a screen reader is told of a window or of something in it. Texts are UTF-8.
struct AccessibleNode {
  ControlId id = kWholeForm;
  AccessibleRole role = AccessibleRole::Window;
  std::string name{};
  /// What the name leaves out, such as the time of a film.
  std::string detail{};
  /// The part that is in sight, in pixels of the form. Empty for what has scrolled out of sight.
  Rect place{};
  bool unavailable = false;
  /// The mouse is on it, and the shell shows that.
  bool hovered = false;
  /// Of a button that stays pressed: whether it is.
  std::optional<bool> pressed{};
  /// It can be pressed, which does what a click does.
  bool clickable = false;
  std::optional<AccessibleValue> value{};
  /// The value can be set, which does what a drag does.
  bool settable = false;
  std::vector<AccessibleNode> children{};
};

/// A control as a node: its place, and whether it can be clicked or dragged. Blanks around the name go.
AccessibleNode AccessibleOf(const Control& control, AccessibleRole role, const std::string& name);

/// The node of a control, in `tree` or below; null if it is not there.
const AccessibleNode* FindAccessible(const AccessibleNode& tree, ControlId id);

/// The tree in words, a line a node, for people who read listings:
///   window "Atlas"
///     list "Menu"
///       item "Gry" hovered
std::string AccessibleListing(const AccessibleNode& tree);

}  // namespace orvanta
