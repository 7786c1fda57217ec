#include "platform/desktop/window/EnlargedPictures.h"

#include <cstring>
#include <memory>
#include <vector>

#include "platform/desktop/window/Zoom.h"

namespace orvanta {

namespace {

constexpr qsizetype kBytesPerPixel = 4;

}  // namespace

QImage Enlarged(const QImage& picture, QSize size) {
  const QImage source = picture.depth() == 8 * kBytesPerPixel
                            ? picture
                            : picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QImage result(size, source.format());
  if (source.isNull() || result.isNull()) return {};
  const WindowZoom zoom{{source.width(), source.height()}, {size.width(), size.height()}};
  std::vector<int> columns;
  for (int x = 0; x < size.width(); ++x) columns.push_back(zoom.ToProgram({x, 0}).x);
  for (int y = 0, last = -1; y < size.height(); ++y) {
    const int row = zoom.ToProgram({0, y}).y;
    uchar* target = result.scanLine(y);
    if (row == std::exchange(last, row)) {
      std::memcpy(target, result.constScanLine(y - 1), static_cast<std::size_t>(result.bytesPerLine()));
      continue;
    }
    const auto* from = reinterpret_cast<const QRgb*>(source.constScanLine(row));
    auto* to = reinterpret_cast<QRgb*>(target);
    for (const int column : columns) *to++ = from[column];
  }
  return result;
}

const QPixmap* EnlargedPictures::At(const QPixmap& picture, QSize size) {
  const Key key{picture.cacheKey(), {size.width(), size.height()}};
  if (const QPixmap* kept = kept_.object(key)) return kept;
  const qsizetype bytes = kBytesPerPixel * size.width() * size.height();
  if (bytes > kMostBytes) return nullptr;
  auto made = std::make_unique<QPixmap>(QPixmap::fromImage(Enlarged(picture.toImage(), size)));
  kept_.insert(key, made.release(), bytes);
  return kept_.object(key);
}

}  // namespace orvanta
