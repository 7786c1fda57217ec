#include "disctool/disc/OutlineSvg.h"

#include "platform/Region.h"
#include "startup/modFormShape.h"

namespace orvanta {

std::string OutlineSvg() {
  std::string path;
  for (const Rect& part : BuildFormRegion().Rects())
    path += "M" + std::to_string(part.left) + " " + std::to_string(part.top) + "h" +
            std::to_string(part.width) + "v" + std::to_string(part.height) + "h-" +
            std::to_string(part.width) + "z\n";
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"667\" height=\"496\" viewBox=\"0 0 667 496\">\n"
         "<title>Outline of the main window</title>\n<path shape-rendering=\"crispEdges\" fill=\"#808080\" "
         "d=\"\n" +
         path + "\"/>\n</svg>\n";
}

}  // namespace orvanta
