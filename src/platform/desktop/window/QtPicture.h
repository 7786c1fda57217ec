#pragma once

#include <QPixmap>
#include <filesystem>

#include "platform/Picture.h"

namespace orvanta {

/// A picture of a file, ready to be painted.
class QtPicture : public Picture {
 public:
  explicit QtPicture(QPixmap pixels) : pixels_(std::move(pixels)) {}
  Size PixelSize() const override { return {pixels_.width(), pixels_.height()}; }

  /// The picture at a size. The last one is kept: a stretched picture is painted at one size again and again.
  const QPixmap& At(QSize size) const;

 private:
  const QPixmap pixels_;
  mutable QPixmap scaled_;
};

/// The picture in a file, of any format that Qt reads; null if there is none that can be read. What is no
/// regular file is not opened: a FIFO would hold the program up.
PicturePtr LoadQtPicture(const std::filesystem::path& file);

}  // namespace orvanta
