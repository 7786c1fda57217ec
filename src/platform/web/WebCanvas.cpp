#include "platform/web/WebCanvas.h"

#include <algorithm>
#include <cmath>

#include "platform/FontFamilies.h"
#include "platform/web/WebPicture.h"

namespace orvanta {

WebCanvas::WebCanvas(int window, const Rect& area) {
  BrowserBeginPaint(window, area.left, area.top, area.width, area.height);
}

WebCanvas::~WebCanvas() { BrowserEndPaint(); }

void WebCanvas::PushClip(const Rect& area) { BrowserPushClip(area.left, area.top, area.width, area.height); }

void WebCanvas::PopClip() { BrowserPopClip(); }

void WebCanvas::Fill(const Rect& area, ColourValue colour) {
  BrowserFill(area.left, area.top, area.width, area.height, Red(colour), Green(colour), Blue(colour));
}

void WebCanvas::Draw(const Picture& picture, const Rect& target) {
  if (target.Empty()) return;
  // Every picture of this program is the browser's.
  const int number = static_cast<const WebPicture&>(picture).number;
  BrowserDraw(number, target.left, target.top, target.width, target.height);
}

void WebCanvas::Text(const std::string& text, const Rect& area, const Font& font, ColourValue colour,
                     Alignment alignment) {
  std::string families;
  for (const std::string& family : FontFamilies(font.name)) families += family + '\n';
  BrowserText(text.c_str(), area.left, area.top, area.width, families.c_str(), font.bold, PixelSize(font),
              Red(colour), Green(colour), Blue(colour), alignment == Alignment::Right);
}

}  // namespace orvanta
