#pragma once

#include "platform/Canvas.h"

namespace orvanta {

/// Paints on the canvas of one window, between its construction and its end.
class WebCanvas final : public Canvas {
 public:
  WebCanvas(int window, const Rect& area);
  ~WebCanvas() override;
  WebCanvas(const WebCanvas&) = delete;
  WebCanvas& operator=(const WebCanvas&) = delete;

  void PushClip(const Rect& area) override;
  void PopClip() override;
  void Fill(const Rect& area, ColourValue colour) override;
  void Draw(const Picture& picture, const Rect& target) override;
  void Text(const std::string& text, const Rect& area, const Font& font, ColourValue colour,
            Alignment alignment) override;
};

}  // namespace orvanta
