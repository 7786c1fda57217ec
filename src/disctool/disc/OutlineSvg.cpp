#include "disctool/disc/OutlineSvg.h"

#include "platform/Region.h"
#include "startup/Design.h"
#include "startup/modFormShape.h"

namespace orvanta {

std::string OutlineSvg() {
  std::string path;
  for (const Rect& part : BuildFormRegion().Rects())
    path += "M" + std::to_string(part.left) + " " + std::to_string(part.top) + "h" +
            std::to_string(part.width) + "v" + std::to_string(part.height) + "h-" +
            std::to_string(part.width) + "z\n";
  const std::string width = std::to_string(kMainWindow.width), height = std::to_string(kMainWindow.height);
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" + height +
         "\" viewBox=\"0 0 " + width + " " + height +
         "\">\n"
         "<title>Outline of the main window</title>\n<path shape-rendering=\"crispEdges\" fill=\"#808080\" "
         "d=\"\n" +
         path + "\"/>\n</svg>\n";
}

}  // namespace orvanta
