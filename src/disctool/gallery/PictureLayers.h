#pragma once

#include <QImage>
#include <optional>
#include <string>
#include <vector>

namespace orvanta {

/// Stores what similar views have in common only once: the first of them becomes the *ground* of the others,
/// of which only the parts that differ are stored.
class PictureLayers {
 public:
  struct Layered {
    QImage picture;      ///< as large as the view; transparent where it equals the ground
    std::string ground;  ///< the name of the picture to lay it on; empty if it is complete by itself
  };

  /// Takes a view in `Format_ARGB32_Premultiplied` with the name by which later views refer to it. A scrolled
  /// view rarely becomes a ground, since no other view looks like it.
  Layered Split(const std::string& name, QImage view, bool scrolled);

  /// Adds a picture that was stored earlier to the grounds.
  void AddGround(std::string name, QImage view);
  /// Whether `AddGround` would still have an effect: only a few grounds are kept.
  bool WantsGrounds() const;

 private:
  struct Ground {
    std::string name;
    QImage picture;
  };

  std::vector<Ground> grounds_;
};

/// The number of pixels in `view` that differ from `ground`; nothing if `view` cannot be laid on it because
/// the sizes differ, or because `view` is transparent where `ground` is not.
std::optional<qsizetype> PixelsThatDiffer(const QImage& ground, const QImage& view);

}  // namespace orvanta
