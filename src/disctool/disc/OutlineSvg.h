#pragma once

#include <string>

namespace orvanta {

/// The outline of the main window as a drawing for artists, a unit a pixel.
std::string OutlineSvg();

}  // namespace orvanta
