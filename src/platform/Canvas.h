#pragma once

#include <string>

#include "platform/Colour.h"
#include "platform/Geometry.h"
#include "platform/Picture.h"

namespace orvanta {

enum class Alignment { Left, Right };

struct Font {
  std::string name;
  bool bold = false;
  /// In points; 72 points are 96 pixels.
  double size = 8.25;
};

/// What a form is painted on. All positions are in pixels of the form; nothing is painted outside the clip.
class Canvas {
 public:
  virtual ~Canvas() = default;
  /// Narrows the clip to `area` until the matching `PopClip`.
  virtual void PushClip(const Rect& area) = 0;
  virtual void PopClip() = 0;
  virtual void Fill(const Rect& area, ColourValue colour) = 0;
  /// Paints the whole picture, scaled to `target` if the sizes differ.
  virtual void Draw(const Picture& picture, const Rect& target) = 0;
  /// Paints the whole picture at its real size.
  void DrawAt(Point corner, const Picture& picture) {
    Draw(picture, {corner.x, corner.y, picture.PixelSize().width, picture.PixelSize().height});
  }
  /// Paints UTF-8 text, wrapped at the width of `area`, starting at its top. The text has no markup.
  virtual void Text(const std::string& text, const Rect& area, const Font& font, ColourValue colour,
                    Alignment alignment) = 0;
};

}  // namespace orvanta
