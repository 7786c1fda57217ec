#pragma once

#include <string>
#include <vector>

#include "platform/Canvas.h"

namespace orvanta {

/// The families that show text in a font of this name, the best first: the font itself, Liberation's stand-in
/// for a font of the old desktop, and Liberation Sans. None is empty.
std::vector<std::string> FontFamilies(const std::string& name);

/// The font's size in pixels, 1 at least.
int PixelSize(const Font& font);

}  // namespace orvanta
