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
  /// In points, 72 to the inch, on a surface of 96 pixels to the inch.
  double size = 8.25;
};

/// What a form is painted with. All places are pixels of the form; nothing is painted outside the clip.
class Canvas {
 public:
  virtual ~Canvas() = default;
  /// Narrows the clip until the matching `PopClip`.
  virtual void PushClip(const Rect& area) = 0;
  virtual void PopClip() = 0;
  virtual void Fill(const Rect& area, ColourValue colour) = 0;
  /// Paints the whole picture, scaled to `target` where the sizes differ.
  virtual void Draw(const Picture& picture, const Rect& target) = 0;
  /// Paints UTF-8 text wrapped at the width of `area`, from its top. Nothing in the text is markup.
  virtual void Text(const std::string& text, const Rect& area, const Font& font, ColourValue colour,
                    Alignment alignment) = 0;
};

}  // namespace orvanta
