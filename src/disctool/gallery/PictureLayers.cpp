#include "disctool/gallery/PictureLayers.h"

#include <algorithm>
#include <span>
#include <utility>

#include "disctool/gallery/PictureWriter.h"

namespace orvanta {
namespace {

/// Each takes 1.3 MB of memory at the size of the main window.
constexpr std::size_t kMostGrounds = 8;
/// A view becomes a ground of its own if more than one pixel in `kAlike` differs from its best ground. If the
/// pixels that differ have few enough colours for a palette, which makes the file much smaller, the limit is
/// one in `kHalf`.
constexpr qsizetype kAlike = 4, kHalf = 2;

std::span<const QRgb> Line(const QImage& image, int y) {
  return {reinterpret_cast<const QRgb*>(image.constScanLine(y)), static_cast<std::size_t>(image.width())};
}

/// The tiles of a picture that differ from its ground.
class Tiles {
 public:
  explicit Tiles(QSize pixels)
      : columns_((pixels.width() - 1) / kTile + 1),
        differ_(static_cast<std::size_t>(columns_) * Rows(pixels)) {}

  /// Marks the tile of a pixel, and the next tile if the pixel is near its edge: a browser that shrinks a
  /// picture mixes neighbouring pixels, and those of a kept pixel must not be transparent.
  void Mark(int x, int y, QSize pixels) {
    for (const int row :
         {std::max(y - kMargin, 0) / kTile, std::min(y + kMargin, pixels.height() - 1) / kTile})
      for (const int column :
           {std::max(x - kMargin, 0) / kTile, std::min(x + kMargin, pixels.width() - 1) / kTile})
        differ_[At(column, row)] = true;
  }
  bool Differs(int x, int y) const { return differ_[At(x / kTile, y / kTile)]; }

 private:
  static constexpr int kTile = 4, kMargin = 3;

  static std::size_t Rows(QSize pixels) {
    return static_cast<std::size_t>((pixels.height() - 1) / kTile + 1);
  }
  std::size_t At(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
  }

  const int columns_;
  std::vector<bool> differ_;
};

QImage Difference(const QImage& ground, const QImage& view) {
  Tiles tiles(view.size());
  for (int y = 0; y < view.height(); ++y) {
    const auto below = Line(ground, y), above = Line(view, y);
    for (int x = 0; x < view.width(); ++x)
      if (above[static_cast<std::size_t>(x)] != below[static_cast<std::size_t>(x)])
        tiles.Mark(x, y, view.size());
  }
  QImage difference = view;
  for (int y = 0; y < view.height(); ++y) {
    auto* out = reinterpret_cast<QRgb*>(difference.scanLine(y));
    for (int x = 0; x < view.width(); ++x)
      if (!tiles.Differs(x, y)) out[x] = 0;
  }
  return difference;
}

}  // namespace

std::optional<qsizetype> PixelsThatDiffer(const QImage& ground, const QImage& view) {
  if (ground.size() != view.size()) return std::nullopt;
  qsizetype differing = 0;
  for (int y = 0; y < view.height(); ++y) {
    const auto below = Line(ground, y), above = Line(view, y);
    for (std::size_t x = 0; x < above.size(); ++x) {
      if (above[x] == below[x]) continue;
      // The ground would show through a pixel that is partly transparent.
      if (qAlpha(above[x]) != 255) return std::nullopt;
      ++differing;
    }
  }
  return differing;
}

bool PictureLayers::WantsGrounds() const { return grounds_.size() < kMostGrounds; }

void PictureLayers::AddGround(std::string name, QImage view) {
  if (WantsGrounds())
    grounds_.push_back(
        {std::move(name), std::move(view).convertToFormat(QImage::Format_ARGB32_Premultiplied)});
}

PictureLayers::Layered PictureLayers::Split(const std::string& name, QImage view, bool scrolled) {
  const Ground* best = nullptr;
  const qsizetype pixels = qsizetype{view.width()} * view.height();
  qsizetype fewest = pixels / kHalf;
  for (const Ground& ground : grounds_) {
    const auto differing = PixelsThatDiffer(ground.picture, view);
    if (!differing || *differing > fewest) continue;
    best = &ground;
    fewest = *differing;
  }
  if (best) {
    QImage difference = WithPalette(Difference(best->picture, view));
    if (scrolled || fewest <= pixels / kAlike || difference.format() == QImage::Format_Indexed8)
      return {std::move(difference), best->name};
  }
  AddGround(name, view);
  return {std::move(view), {}};
}

}  // namespace orvanta
