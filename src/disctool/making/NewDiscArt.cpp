#include "disctool/making/NewDiscArt.h"

#include <QPainter>
#include <array>

#include "startup/Design.h"
#include "startup/modFormShape.h"

namespace orvanta {
namespace {

const QColor kShell(0x3A, 0x4A, 0x5E), kDeep(0x12, 0x1C, 0x28), kEdge(0xC8, 0xA0, 0x50),
    kPaper(0xF0, 0xEA, 0xDC), kInk(0x20, 0x24, 0x2C);

QImage Sheet(int width, int height, const QColor& top, const QColor& bottom) {
  QImage image(width, height, QImage::Format_RGB32);
  QLinearGradient shade(0, 0, 0, height);
  shade.setColorAt(0, top);
  shade.setColorAt(1, bottom);
  QPainter(&image).fillRect(image.rect(), shade);
  return image;
}

void Frame(QImage& image, const QRect& area, int width) {
  QPainter painter(&image);
  painter.setPen(QPen(kEdge, width));
  painter.drawRect(area.adjusted(width / 2, width / 2, -(width + 1) / 2, -(width + 1) / 2));
}

void Letter(QImage& image, const QRect& area, const QString& text, int size, const QColor& colour,
            Qt::Alignment alignment = Qt::AlignCenter) {
  QPainter painter(&image);
  QFont font(QStringLiteral("Liberation Sans"));
  font.setPixelSize(size);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(colour);
  painter.drawText(area, static_cast<int>(alignment) | Qt::TextWordWrap, text);
}

/// The main window: an edge along its outline, and frames around its parts.
QImage Main() {
  QImage image = Sheet(kMainWindow.width, kMainWindow.height, kShell.lighter(130), kShell);
  const Region outline = BuildFormRegion();
  const auto outside = [&](int x, int y) { return !outline.Contains({x, y}); };
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (outside(x - 3, y) || outside(x + 3, y) || outside(x, y - 3) || outside(x, y + 3))
        image.setPixelColor(x, y, kEdge);
  Frame(image, {92, 148, 478, 312}, 3);
  QPainter(&image).fillRect(QRect(116, 108, 440, 34), kDeep);
  Frame(image, {116, 108, 440, 34}, 2);
  return image;
}

QImage Page(int height, const QString& title, const QString& text) {
  QImage image = Sheet(396, height, kPaper, kPaper.darker(112));
  Frame(image, image.rect(), 4);
  Letter(image, {20, 20, 356, 40}, title, 24, kInk);
  Letter(image, {30, 80, 336, height - 100}, text, 16, kInk, Qt::AlignHCenter | Qt::AlignTop);
  return image;
}

QImage Scene(int width, int height, const QString& text) {
  QImage image = Sheet(width, height, kShell, kDeep);
  Frame(image, image.rect(), 4);
  Letter(image, image.rect(), text, height / 8, kPaper);
  return image;
}

/// A button as it looks at rest (0), under the cursor (1) or pressed (2).
QImage Button(const QString& sign, int width, int look) {
  const QColor face = look == 2 ? kEdge : kDeep;
  QImage image = Sheet(width, 22, face.lighter(140), face);
  Frame(image, image.rect(), 1);
  Letter(image, image.rect(), sign, 13, look == 0 ? kEdge : look == 1 ? Qt::white : kInk);
  return image;
}

struct ButtonArt {
  const char* name;
  const char* sign;
  int width;
};
constexpr std::array<ButtonArt, 15> kButtons{{{"ext", "×", 26},
                                              {"snd1", "♪", 26},
                                              {"snd2", "–", 26},
                                              {"hlp", "?", 26},
                                              {"start", "START", 78},
                                              {"pauza", "PAUZA", 78},
                                              {"stop", "STOP", 78},
                                              {"info", "i", 26},
                                              {"min", "_", 26},
                                              {"pokaz", "POKAŻ", 78},
                                              {"cplay", "START", 70},
                                              {"cstop", "STOP", 70},
                                              {"cpause", "PAUZA", 70},
                                              {"cscale", "EKRAN", 70},
                                              {"cfscale", "OKNO", 70}}};

QImage Line() {
  QImage image = Sheet(kKreska.width, kKreska.height, kShell, kShell.darker(130));
  Letter(image, {5, 2, 30, 29}, QStringLiteral("←"), 22, kEdge);
  Letter(image, {37, 2, 30, 29}, QStringLiteral("↑"), 22, kEdge);
  return image;
}

}  // namespace

std::map<std::string, QImage> NewDiscArt() {
  std::map<std::string, QImage> art;
  art["main"] = Main();
  // The marks for "back" and "to the first menu" are also below the strip.
  art["area"] = Sheet(kMenuArea.width, 306, kDeep.lighter(130), kDeep);
  art["line"] = Line();
  QPainter(&art["main"]).drawImage(95, 151, art["line"]);
  art["slider"] = Sheet(24, 255, kDeep, kDeep.darker(150));
  art["knob"] = Sheet(24, 30, kEdge.lighter(130), kEdge);
  art["strip"] = Sheet(4, 4, kShell.lighter(120), kShell);
  // Taller than the menu area, so that there is something to scroll.
  art["help"] = Page(520, QStringLiteral("Pomoc"),
                     QStringLiteral("Wybierz pozycję z menu.\n\nStrzałka w lewo wraca o jeden "
                                    "poziom, strzałka w górę do początku.\n\nKliknij stronę, "
                                    "aby ją zamknąć."));
  Letter(art["help"], {30, 450, 336, 30}, QStringLiteral("Ta strona jest wyższa niż okno."), 16, kInk);
  art["about"] =
      Page(306, QStringLiteral("O płycie"), QStringLiteral("Tu wpisz, kto i kiedy zrobił tę płytę."));
  art["start"] = Scene(640, 450, QStringLiteral("Nowa płyta"));
  art["under"] = Sheet(640, 30, kEdge.lighter(120), kEdge);
  art["cinema"] = Scene(560, 420, {});
  QPainter(&art["cinema"]).fillRect(QRect(100, 60, 360, 270), Qt::black);
  for (const ButtonArt& button : kButtons)
    for (int look = 0; look < 3; ++look)
      art[std::string("btn/") + button.name + std::to_string(look)] =
          Button(QString::fromUtf8(button.sign), button.width, look);
  return art;
}

}  // namespace orvanta
