#pragma once

#include <string>

namespace orvanta {

/// The outline of the main window as a drawing for artists, in SVG; a unit is a pixel.
std::string OutlineSvg();

}  // namespace orvanta
