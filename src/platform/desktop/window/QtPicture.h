#pragma once

#include <QPixmap>
#include <filesystem>

#include "platform/Picture.h"

namespace orvanta {

/// A picture from a file, ready to be painted.
class QtPicture : public Picture {
 public:
  explicit QtPicture(QPixmap pixels) : pixels_(std::move(pixels)) {}
  Size PixelSize() const override { return {pixels_.width(), pixels_.height()}; }

  /// The picture scaled to a size. The last one is kept, since a stretched picture is painted at the same
  /// size again and again.
  const QPixmap& At(QSize size) const;

 private:
  const QPixmap pixels_;
  mutable QPixmap scaled_;
};

/// The picture in a file of any format that Qt reads; null if it cannot be read. Only regular files are
/// opened: a FIFO would block the program.
PicturePtr LoadQtPicture(const std::filesystem::path& file);

}  // namespace orvanta
