#pragma once

#include "buttons/modMouse.h"
#include "platform/Form.h"

namespace orvanta {

/// Whether a button of a form counts as hovered. `slot` is the form's place in `LastOver`.
inline bool IsHovered(const modMouse& mouse, std::int16_t slot, const Form& form, const Control& button) {
  const std::int16_t over = mouse.LastOver.at(static_cast<std::size_t>(slot));
  const auto& controls = form.Controls();
  return over >= 0 && static_cast<std::size_t>(over) < controls.size() &&
         controls[static_cast<std::size_t>(over)] == &button;
}

}  // namespace orvanta
