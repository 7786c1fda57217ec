#pragma once

#include <cstdint>

namespace orvanta {

/// Red in the low byte, then green, then blue: 0x0000FF is red. Higher bits are ignored.
using ColourValue = std::int32_t;

inline int Red(ColourValue c) { return c & 0xFF; }
inline int Green(ColourValue c) { return (c >> 8) & 0xFF; }
inline int Blue(ColourValue c) { return (c >> 16) & 0xFF; }

}  // namespace orvanta
