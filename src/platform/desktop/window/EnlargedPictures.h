#pragma once

#include <QCache>
#include <QImage>
#include <QPixmap>
#include <utility>

namespace orvanta {

/// The picture with its pixels repeated. If a width or height is not a multiple, some pixels are repeated
/// once more than others.
QImage Enlarged(const QImage& picture, QSize size);

/// A cache of enlarged pictures. When it would exceed 64 MB, those that have not been used for the longest
/// time are dropped.
class EnlargedPictures {
 public:
  /// Null if the enlarged picture would be too large to keep.
  const QPixmap* At(const QPixmap& picture, QSize size);

 private:
  static constexpr qsizetype kMostBytes = 64 << 20;
  using Key = std::pair<qint64, std::pair<int, int>>;  // the key of the pixels, and the size

  QCache<Key, QPixmap> kept_{kMostBytes};
};

}  // namespace orvanta
