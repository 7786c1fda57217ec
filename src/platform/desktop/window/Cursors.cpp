#include "platform/desktop/window/Cursors.h"

#include <QImage>
#include <QPixmap>
#include <array>
#include <span>

#include "platform/desktop/window/EnlargedPictures.h"

namespace orvanta {

namespace {

// White with a black outline, so that they are visible on any art. The hands of cursor themes have other hot
// spots and sizes.
constexpr std::array kPointingHand{"",
                                   "",
                                   "",
                                   "   ##           ",
                                   "  #oo#          ",
                                   "  #oo#          ",
                                   "  #oo#          ",
                                   "  #oo###        ",
                                   "  #oo#oo###     ",
                                   "  #oo#oo#oo##   ",
                                   "  #oo#oo#oo#o#  ",
                                   "###oooooooooo#  ",
                                   "#oo#ooooooooo#  ",
                                   "#oooooooooooo#  ",
                                   " #ooooooooooo#  ",
                                   " #oooooooooo#   ",
                                   "  #ooooooooo#   ",
                                   "  #oooooooo#    ",
                                   "   #ooooooo#    ",
                                   "   #########    "};
constexpr std::array kOpenHand{"       ##       ",  //
                               "   ## #oo###    ",  //
                               "  #oo##oo#oo#   ",  //
                               "  #oo##oo#oo### ",  //
                               "   #oo#oo#oo#oo#",  //
                               "   #oo#oo#oo#oo#",  //
                               " ## #ooooooooo# ",  //
                               "#oo##ooooooooo# ",  //
                               "#oo#oooooooooo# ",  //
                               " #ooooooooooo#  ",  //
                               "  #oooooooooo#  ",  //
                               "  #oooooooooo#  ",  //
                               "   #oooooooo#   ",  //
                               "    #ooooooo#   ",  //
                               "    #ooooooo#   ",  //
                               "    #########   "};
constexpr std::array kClosedHand{"",
                                 "",
                                 "",
                                 "    ## ## ##    ",
                                 "   #oo#oo#oo##  ",
                                 "   #oo#oo#oo#o# ",
                                 "    #ooooooooo# ",
                                 "  ###ooooooooo# ",
                                 " #oo#ooooooooo# ",
                                 " #oooooooooooo# ",
                                 "  #ooooooooooo# ",
                                 "   #ooooooooo#  ",
                                 "    #ooooooo#   ",
                                 "    #ooooooo#   ",
                                 "    #########   "};

QCursor Drawn(std::span<const char* const> rows, QPoint hotSpot, int zoom) {
  QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  int y = 0;
  for (const char* row : rows) {
    for (int x = 0; row[x] != '\0'; ++x)
      if (row[x] != ' ') image.setPixelColor(x, y, row[x] == '#' ? Qt::black : Qt::white);
    ++y;
  }
  if (zoom > 1) image = Enlarged(image, image.size() * zoom);
  return QCursor(QPixmap::fromImage(image), hotSpot.x() * zoom, hotSpot.y() * zoom);
}

}  // namespace

QCursor CursorOf(Pointer pointer, int zoom) {
  switch (pointer) {
    case Pointer::Default: break;
    case Pointer::Hourglass: return Qt::WaitCursor;
    case Pointer::Hand: return Drawn(kPointingHand, {3, 4}, zoom);
    case Pointer::OpenHand: return Drawn(kOpenHand, {8, 7}, zoom);
    case Pointer::ClosedHand: return Drawn(kClosedHand, {8, 7}, zoom);
  }
  return Qt::ArrowCursor;
}

}  // namespace orvanta
