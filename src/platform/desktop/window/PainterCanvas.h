#pragma once

#include <QPainter>
#include <vector>

#include "platform/Canvas.h"
#include "platform/desktop/window/EnlargedPictures.h"
#include "platform/desktop/window/Zoom.h"

namespace orvanta {

/// Paints a form with Qt. When it is enlarged, the pixels of art are repeated, films are smooth, and text is
/// drawn large with the line breaks that it has at the original size.
class PainterCanvas : public Canvas {
 public:
  PainterCanvas(QPainter& painter, const WindowZoom& zoom, EnlargedPictures& pictures)
      : painter_(painter), zoom_(zoom), pictures_(pictures) {}

  void PushClip(const Rect& area) override;
  void PopClip() override;
  void Fill(const Rect& area, ColourValue colour) override;
  void Draw(const Picture& picture, const Rect& target) override;
  void Text(const std::string& text, const Rect& area, const Font& font, ColourValue colour,
            Alignment alignment) override;

 private:
  QRect OnScreen(const Rect& area) const;
  void DrawArt(const QPixmap& art, const Rect& target);

  QPainter& painter_;
  const WindowZoom zoom_;
  EnlargedPictures& pictures_;
  std::vector<Rect> clips_;
};

}  // namespace orvanta
