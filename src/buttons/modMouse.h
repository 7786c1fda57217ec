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

/// The cursor, waiting, and the picture buttons.
class modMouse {
 public:
  explicit modMouse(Shell& shell) : shell_(shell) {}

  /// The upper left corner of the tracked window, in screen pixels.
  std::int32_t FormLeftPx = 0, FormTopPx = 0;
  /// For each slot, the position in `Controls` of the hovered button; -1 for none.
  std::array<std::int16_t, 201> LastOver{};

  /// Makes `form` the tracked window.
  void Track(const Form& form);
  /// The cursor relative to the tracked window, in pixels.
  Point CursorPos() const;
  /// Pumps events until more than `milliseconds` have passed.
  void Delay(std::int16_t milliseconds);
  /// Finds the button of the array `name` under the cursor and shows its Over picture, and the Normal picture
  /// of the button that the cursor has left. Pictures change only at these transitions. The button with the
  /// index `pressed` keeps its picture.
  void OverButton(std::int16_t slot, Form& form, std::string_view name, const ImageList& pictures,
                  std::int16_t pressed);

 private:
  std::int16_t ButtonUnderCursor(const Form& form, std::string_view name) const;

  Shell& shell_;
};

}  // namespace orvanta
