#pragma once

#include <QImage>
#include <utility>

#include "platform/Picture.h"

namespace orvanta {

/// One picture of a film. `image` has the memory and the pixels of the decoder. The size of the picture is
/// what it takes up on the screen, whose pixels are square, so a painter scales the image to a rectangle of
/// that size.
class FilmPicture : public Picture {
 public:
  FilmPicture(QImage pixels, Size shown) : image(std::move(pixels)), shown_(shown) {}
  Size PixelSize() const override { return shown_; }

  const QImage image;

 private:
  Size shown_;
};

}  // namespace orvanta
