#include "platform/desktop/window/PainterCanvas.h"

#include "platform/desktop/window/FilmPicture.h"
#include "platform/desktop/window/Fonts.h"
#include "platform/desktop/window/QtPicture.h"

namespace orvanta {

namespace {

QRect ToQt(const Rect& r) { return {r.left, r.top, r.width, r.height}; }
QColor ToQt(ColourValue c) { return {Red(c), Green(c), Blue(c)}; }

}  // namespace

QRect PainterCanvas::OnScreen(const Rect& area) const { return ToQt(zoom_.ToScreen(area)); }

void PainterCanvas::PushClip(const Rect& area) {
  clips_.push_back(clips_.empty() ? area : Intersection(clips_.back(), area));
  painter_.setClipRect(OnScreen(clips_.back()));
}

void PainterCanvas::PopClip() {
  clips_.pop_back();
  if (clips_.empty()) {
    painter_.setClipping(false);
  } else {
    painter_.setClipRect(OnScreen(clips_.back()));
  }
}

void PainterCanvas::Fill(const Rect& area, ColourValue colour) {
  painter_.fillRect(OnScreen(area), ToQt(colour));
}

void PainterCanvas::Draw(const Picture& picture, const Rect& target) {
  if (target.Empty()) return;
  if (const auto* art = dynamic_cast<const QtPicture*>(&picture)) {
    DrawArt(art->At({target.width, target.height}), target);
  } else if (const auto* film = dynamic_cast<const FilmPicture*>(&picture)) {
    painter_.setRenderHint(QPainter::SmoothPixmapTransform);
    painter_.drawImage(OnScreen(target), film->image);
  }
}

void PainterCanvas::DrawArt(const QPixmap& art, const Rect& target) {
  const QRect place = OnScreen(target);
  if (place.size() == art.size()) return painter_.drawPixmap(place.topLeft(), art);
  if (const QPixmap* large = pictures_.At(art, place.size()))
    return painter_.drawPixmap(place.topLeft(), *large);
  const Rect seen = clips_.empty() ? target : Intersection(target, clips_.back());
  const QRect part = OnScreen(seen);
  if (part.isEmpty()) return;
  const QImage pixels = art.copy(ToQt(seen.Moved({-target.left, -target.top}))).toImage();
  painter_.drawImage(part.topLeft(), Enlarged(pixels, part.size()));
}

void PainterCanvas::Text(const std::string& text, const Rect& area, const Font& font, ColourValue colour,
                         Alignment alignment) {
  painter_.setFont(ScreenFont(font));
  painter_.setPen(ToQt(colour));
  const int side = alignment == Alignment::Right ? Qt::AlignRight : Qt::AlignLeft;
  // With a scaled painter, lines break as they would at the original size.
  if (zoom_.Enlarges()) painter_.setWorldTransform(QTransform::fromScale(zoom_.ScaleX(), zoom_.ScaleY()));
  painter_.drawText(ToQt(area), side | Qt::AlignTop | Qt::TextWordWrap, QString::fromStdString(text));
  if (zoom_.Enlarges()) painter_.setWorldTransform({});
}

}  // namespace orvanta
