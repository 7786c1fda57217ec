#pragma once

#include <string>
#include <vector>

#include "platform/Canvas.h"

namespace orvanta {

/// The font families that can show text in a font of this name, the best first: the font itself, the
/// Liberation font that replaces a font of old desktops, and Liberation Sans. None of them is empty.
std::vector<std::string> FontFamilies(const std::string& name);

/// The size of the font in pixels, at least 1.
int PixelSize(const Font& font);

}  // namespace orvanta
