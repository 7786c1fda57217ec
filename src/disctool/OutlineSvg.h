#pragma once

#include <string>

namespace orvanta {

/// The two configuration files of a new disc, in Windows-1250.
std::string NewParamIni();
std::string NewMenuIni();

/// The outline of the main window as a drawing for artists, a unit a pixel.
std::string OutlineSvg();

}  // namespace orvanta
