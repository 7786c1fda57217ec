#include "platform/desktop/window/QtPicture.h"

#include <QImageReader>
#include <system_error>
#include <utility>

namespace orvanta {

const QPixmap& QtPicture::At(QSize size) const {
  if (size == pixels_.size()) return pixels_;
  if (scaled_.size() != size) {
    scaled_ = pixels_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  return scaled_;
}

PicturePtr LoadQtPicture(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return nullptr;
  QImageReader reader(QString::fromStdString(file.string()));
  // The file names on discs often do not match the content.
  reader.setDecideFormatFromContent(true);
  QPixmap pixels = QPixmap::fromImageReader(&reader);
  pixels.setDevicePixelRatio(1);  // Qt considers "main@2x.gif" a picture of twice the resolution
  return pixels.isNull() ? nullptr : std::make_shared<QtPicture>(std::move(pixels));
}

}  // namespace orvanta
