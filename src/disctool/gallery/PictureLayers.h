#pragma once

#include <QImage>
#include <optional>
#include <string>
#include <vector>

namespace orvanta {

/// Stores views that have most of their pixels in common once: the first of a kind becomes the *ground* of
/// those like it, of which only the parts that differ are kept.
class PictureLayers {
 public:
  struct Layered {
    QImage picture;      ///< of the view's size; where there is a ground, what equals it is transparent
    std::string ground;  ///< the name of the picture to lay it on; empty if it stands by itself
  };

  /// Takes a view in `Format_ARGB32_Premultiplied`. `name` is what later views call it by. A scrolled view
  /// becomes no ground lightly: nothing else looks like it.
  Layered Split(const std::string& name, QImage view, bool scrolled);

  /// Makes a picture that was stored before known as a ground.
  void AddGround(std::string name, QImage view);
  /// Whether that still changes anything: a few grounds are enough.
  bool WantsGrounds() const;

 private:
  struct Ground {
    std::string name;
    QImage picture;
  };

  std::vector<Ground> grounds_;
};

/// Counts the pixels of `view` that differ from `ground`; nothing if `view` cannot be laid on it, since the
/// sizes differ or `view` is transparent where `ground` is not.
std::optional<qsizetype> PixelsThatDiffer(const QImage& ground, const QImage& view);

}  // namespace orvanta
