#pragma once

#include <QPainter>
#include <vector>

#include "platform/Canvas.h"

namespace orvanta {

/// Paints a form with Qt.
class PainterCanvas : public Canvas {
 public:
  explicit PainterCanvas(QPainter& painter) : painter_(painter) {}

  void PushClip(const Rect& area) override;
  void PopClip() override;
  void Fill(const Rect& area, ColourValue colour) override;
  void Draw(const Picture& picture, const Rect& target) override;
  void Text(const std::string& text, const Rect& area, const Font& font, ColourValue colour,
            Alignment alignment) override;

 private:
  QPainter& painter_;
  std::vector<Rect> clips_;
};

}  // namespace orvanta
