#pragma once

#include <QImage>
#include <utility>

#include "platform/Picture.h"

namespace orvanta {

/// One picture of a film. `image` keeps the decoder's own memory and pixels; its size is what it takes up on
/// the screen, where pixels are square, so a painter draws the image scaled into a rectangle of that size.
class FilmPicture : public Picture {
 public:
  FilmPicture(QImage pixels, Size shown) : image(std::move(pixels)), shown_(shown) {}
  Size PixelSize() const override { return shown_; }

  const QImage image;

 private:
  Size shown_;
};

}  // namespace orvanta
