#pragma once

#include "platform/Region.h"

namespace orvanta {

class Form;

/// The outline of the main window: a polygon with five tabs, two rectangles and an ellipse, 267024 pixels in
/// a window of `kMainWindow`.
Region BuildFormRegion();

/// Cuts the form to the outline: what lies outside is not drawn and takes no clicks.
void ApplyFormShape(Form& form);

}  // namespace orvanta
