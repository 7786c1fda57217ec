#include "platform/MovieScreen.h"

#include <algorithm>

#include "platform/ActiveMovie.h"
#include "platform/Host.h"

namespace orvanta {

namespace {

/// `inner` as large as it fits into `outer` at its own proportions, in the middle.
Rect Fitted(Size inner, const Rect& outer) {
  const double scale = std::min(static_cast<double>(outer.width) / inner.width,
                                static_cast<double>(outer.height) / inner.height);
  const int width = std::max(1, static_cast<int>(inner.width * scale));
  const int height = std::max(1, static_cast<int>(inner.height * scale));
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
  const Size screen = TheHost().ScreenSize();
  Width = screen.width * kTwipsPerPixel;
  Height = screen.height * kTwipsPerPixel;
  SetOwner(owner);
}

void MovieScreen::Paint(Canvas& canvas, const Rect& area) const {
  canvas.PushClip(area);
  canvas.Fill(area, 0);
  const PicturePtr frame = movie_.Frame();
  if (frame && !frame->PixelSize().Empty()) canvas.Draw(*frame, Fitted(frame->PixelSize(), ClientArea()));
  canvas.PopClip();
}

void MovieScreen::Form_Click() {
  // A copy, since the handler takes this window down.
  if (const auto handler = movie_.ScreenClick) handler();
}

}  // namespace orvanta
