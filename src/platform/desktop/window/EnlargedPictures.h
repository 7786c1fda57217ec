#pragma once

#include <QCache>
#include <QImage>
#include <QPixmap>
#include <utility>

namespace orvanta {

/// The picture with its pixels repeated. A width or height that is not a multiple repeats some of them once
/// more often than others.
QImage Enlarged(const QImage& picture, QSize size);

/// Enlarged pictures, each made once. The ones that were not used for the longest time go when all of them
/// together would take up more than 64 MB.
class EnlargedPictures {
 public:
  /// Null for one that is too large to be kept.
  const QPixmap* At(const QPixmap& picture, QSize size);

 private:
  static constexpr qsizetype kMostBytes = 64 << 20;
  using Key = std::pair<qint64, std::pair<int, int>>;  // of the pixels, and the size

  QCache<Key, QPixmap> kept_{kMostBytes};
};

}  // namespace orvanta
