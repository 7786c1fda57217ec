#include "platform/MovieScreen.h"

#include <algorithm>
#include <cmath>

#include "platform/ActiveMovie.h"
#include "platform/Host.h"

namespace orvanta {

namespace {

/// `inner`, which is not empty, enlarged or reduced to fit `outer` in its own proportions, and centred.
Rect Fitted(Size inner, const Rect& outer) {
  const auto scaled = [](double side, int numerator, int denominator) {
    return std::max(1, static_cast<int>(std::nearbyint(side * numerator / denominator)));
  };
  const int width = std::min(outer.width, scaled(inner.width, outer.height, inner.height));
  const int height = std::min(outer.height, scaled(inner.height, outer.width, inner.width));
  return {(outer.width - width) / 2, (outer.height - height) / 2, width, height};
}

}  // namespace

MovieScreen::MovieScreen(Form& owner, const ActiveMovie& movie)
    : Form(owner.TheHost(), {.name = "MovieScreen",
                             .width = 0,
                             .height = 0,
                             .window = WindowKind::FullScreen,
                             .centred = false}),
      movie_(movie) {
  SetOwner(owner);
}

void MovieScreen::Cover() {
  const Size screen = TheHost().ScreenSize();
  Width = screen.width * kTwipsPerPixel;
  Height = screen.height * kTwipsPerPixel;
  Visible = true;
}

void MovieScreen::Paint(Canvas& canvas, const Rect& area) const {
  canvas.PushClip(area);
  canvas.Fill(area, 0);
  const PicturePtr frame = movie_.Frame();
  if (frame && !frame->PixelSize().Empty()) canvas.Draw(*frame, Fitted(frame->PixelSize(), ClientArea()));
  canvas.PopClip();
}

AccessibleNode MovieScreen::Accessible() const {
  AccessibleNode window = Form::Accessible();
  window.name = Owner()->Caption;
  window.clickable = true;
  return window;
}

void MovieScreen::Form_Click() {
  if (movie_.ScreenClick) movie_.ScreenClick();
}

}  // namespace orvanta
