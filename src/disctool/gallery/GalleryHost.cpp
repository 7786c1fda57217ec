#include "disctool/gallery/GalleryHost.h"

#include <QPainter>

#include "disctool/gallery/FilmStill.h"
#include "platform/desktop/window/PainterCanvas.h"
#include "platform/desktop/window/QtPicture.h"

namespace orvanta {

namespace {

/// Shows one picture of a film. It ignores sounds: nobody hears them, and the walk would have to wait for
/// their end.
class StillPlayer : public MoviePlayer {
 public:
  explicit StillPlayer(MovieKind kind) : kind_(kind) {}

  void Open(const std::filesystem::path& file) override {
    still_ = kind_ == MovieKind::Film ? FilmStill(file) : nullptr;
  }
  void Run() override {}
  void Pause() override {}
  void Stop() override {}
  MovieState State() override { return still_ ? MovieState::Running : MovieState::NoFile; }
  bool Loaded() override { return still_ != nullptr; }
  double Position() override { return 0; }
  void SetPosition(double) override {}
  double Length() override { return 0; }
  int Volume() override { return 0; }
  void SetVolume(int) override {}
  void SetPlayCount(int) override {}
  Size FilmSize() override { return still_ ? still_->PixelSize() : Size{}; }
  PicturePtr Frame() override { return still_; }

 private:
  const MovieKind kind_;
  PicturePtr still_;
};

}  // namespace

std::unique_ptr<MoviePlayer> GalleryHost::MakePlayer(MovieKind kind) {
  return std::make_unique<StillPlayer>(kind);
}

PicturePtr GalleryHost::LoadPicture(const std::filesystem::path& file) { return LoadQtPicture(file); }

QImage GalleryHost::ImageOf(const Picture& picture) {
  const auto& art = dynamic_cast<const QtPicture&>(picture);
  return art.At({art.PixelSize().width, art.PixelSize().height}).toImage();
}

QImage GalleryHost::PictureOf(const Form& form) const {
  const Rect area = form.ClientArea();
  QImage picture(area.width, area.height, QImage::Format_ARGB32_Premultiplied);
  if (picture.isNull()) return picture;
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  EnlargedPictures unused;
  PainterCanvas canvas(painter, {{area.width, area.height}, {area.width, area.height}}, unused);
  form.Paint(canvas, area);
  const auto& shape = WindowOf(form).shape;
  if (!shape) return picture;
  painter.end();
  QImage shaped(picture.size(), picture.format());
  shaped.fill(Qt::transparent);
  QPainter cutter(&shaped);
  for (const Rect& part : shape->Rects())
    cutter.drawImage(part.left, part.top, picture, part.left, part.top, part.width, part.height);
  return shaped;
}

}  // namespace orvanta
