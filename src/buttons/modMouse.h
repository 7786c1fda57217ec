#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/EventLoop.h"
#include "platform/Geometry.h"
#include "platform/ImageList.h"

namespace orvanta {

class Form;
class Image;
class Shell;

/// The cursor, the waiting and the picture buttons.
class modMouse {
 public:
  explicit modMouse(Shell& shell) : shell_(shell) {}

  /// The top left corner of the window whose buttons are being tracked, in pixels of the screen.
  std::int32_t FormLeftPx = 0, FormTopPx = 0;
  /// By slot: the position in the form's `Controls` of the button that counts as hovered, -1 for none.
  std::array<std::int16_t, 201> LastOver{};

  /// Makes `form` the window that is being tracked.
  void Track(const Form& form);
  /// The cursor in pixels of the tracked window.
  Point CursorPos() const;
  /// Pumps until more than `milliseconds` have passed.
  void Delay(std::int16_t milliseconds);
  /// Finds the button of the array `name` under the cursor and gives it its over picture, and the one that
  /// the cursor has left its normal one. Pictures are assigned at transitions alone; the button with the
  /// index `pressed` is left as it is.
  void OverButton(std::int16_t slot, Form& form, std::string_view name, const ImageList& pictures,
                  std::int16_t pressed);

 private:
  std::int16_t ButtonUnderCursor(const Form& form, std::string_view name) const;

  Shell& shell_;
};

}  // namespace orvanta
