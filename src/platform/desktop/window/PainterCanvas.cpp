#include "platform/desktop/window/PainterCanvas.h"

#include "platform/desktop/window/FilmPicture.h"
#include "platform/desktop/window/Fonts.h"
#include "platform/desktop/window/QtPicture.h"

namespace orvanta {

namespace {

QRect ToQt(const Rect& r) { return {r.left, r.top, r.width, r.height}; }
QColor ToQt(ColourValue c) { return {Red(c), Green(c), Blue(c)}; }

}  // namespace

void PainterCanvas::PushClip(const Rect& area) {
  clips_.push_back(clips_.empty() ? area : Intersection(clips_.back(), area));
  painter_.setClipRect(ToQt(clips_.back()));
}

void PainterCanvas::PopClip() {
  clips_.pop_back();
  if (clips_.empty()) {
    painter_.setClipping(false);
  } else {
    painter_.setClipRect(ToQt(clips_.back()));
  }
}

void PainterCanvas::Fill(const Rect& area, ColourValue colour) {
  painter_.fillRect(ToQt(area), ToQt(colour));
}

void PainterCanvas::Draw(const Picture& picture, const Rect& target) {
  if (target.Empty()) return;
  if (const auto* art = dynamic_cast<const QtPicture*>(&picture)) {
    painter_.drawPixmap(target.left, target.top, art->At({target.width, target.height}));
  } else if (const auto* film = dynamic_cast<const FilmPicture*>(&picture)) {
    painter_.setRenderHint(QPainter::SmoothPixmapTransform);
    painter_.drawImage(ToQt(target), film->image);
  }
}

void PainterCanvas::Text(const std::string& text, const Rect& area, const Font& font, ColourValue colour,
                         Alignment alignment) {
  painter_.setFont(ScreenFont(font));
  painter_.setPen(ToQt(colour));
  const int side = alignment == Alignment::Right ? Qt::AlignRight : Qt::AlignLeft;
  painter_.drawText(ToQt(area), side | Qt::AlignTop | Qt::TextWordWrap, QString::fromStdString(text));
}

}  // namespace orvanta
