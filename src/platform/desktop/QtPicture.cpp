#include "platform/desktop/QtPicture.h"

namespace orvanta {

const QPixmap& QtPicture::At(QSize size) const {
  if (size == pixels_.size()) return pixels_;
  if (scaled_.size() != size) {
    scaled_ = pixels_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  return scaled_;
}

}  // namespace orvanta
