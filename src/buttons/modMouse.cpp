#include "buttons/modMouse.h"

#include "buttons/PictureButtons.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

/// The button at a position in `Controls`; null if there is none, as before the first activation of the form.
Image* ButtonAt(const Form& form, int position) {
  const auto& controls = form.Controls();
  if (position < 0 || static_cast<std::size_t>(position) >= controls.size()) return nullptr;
  return dynamic_cast<Image*>(controls[static_cast<std::size_t>(position)]);
}

}  // namespace

void modMouse::Track(const Form& form) {
  const ScreenMetrics screen = shell_.host.Screen();
  FormLeftPx = CLng(form.Left) / screen.TwipsPerPixelX;
  FormTopPx = CLng(form.Top) / screen.TwipsPerPixelY;
}

Point modMouse::CursorPos() const { return shell_.host.CursorPos() - Point{FormLeftPx, FormTopPx}; }

void modMouse::Delay(std::int16_t milliseconds) {
  const Milliseconds end = shell_.host.Now() + milliseconds;
  while (shell_.host.Now() <= end) shell_.host.Loop().PumpOrWait(end + 1);
}

std::int16_t modMouse::ButtonUnderCursor(const Form& form, std::string_view name) const {
  const Point p = CursorPos();
  const auto& controls = form.Controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    if (controls[i]->Name != name || !controls[i]->Visible) continue;
    const auto& button = static_cast<const Image&>(*controls[i]);
    if (p.x > button.Left && p.x < button.Left + button.Width && p.y > button.Top &&
        p.y < button.Top + button.Height) {
      return static_cast<std::int16_t>(i);
    }
  }
  return -1;
}

void modMouse::OverButton(std::int16_t slot, Form& form, std::string_view name, const ImageList& pictures,
                          std::int16_t pressed) {
  std::int16_t& last = LastOver.at(static_cast<std::size_t>(slot));
  const auto show = [&](Image& button, ButtonPicture picture) {
    button.Picture = pictures(PictureEntry(button.Index, picture));
  };
  const std::int16_t hit = ButtonUnderCursor(form, name);
  if (hit == last) return;
  Image* const over = ButtonAt(form, hit);
  Image* const left = ButtonAt(form, last);
  if (over && last == -1) {
    last = hit;
    if (over->Index != pressed) show(*over, ButtonPicture::Over);
    return;
  }
  if (left && left->Index != pressed) show(*left, ButtonPicture::Normal);
  if (over) {
    // The latched button does not count as hovered: the slot keeps the one that the cursor left.
    if (over->Index == pressed) return;
    last = hit;
    show(*over, ButtonPicture::Over);
  } else if (!left || left->Index != pressed) {
    last = -1;
  }
}

}  // namespace orvanta
