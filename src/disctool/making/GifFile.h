#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Geometry.h"

namespace orvanta {

/// The size of a GIF file whose first picture is complete; nothing if it is not a GIF file or ends too early.
/// The compressed data are not checked. Follows GIF89a (CompuServe, 1990).
std::optional<Size> WholeGifSize(std::string_view bytes);

using GifColour = std::array<std::uint8_t, 3>;  // red, green, blue

/// A GIF file with one picture. `pixels` are its rows from top to bottom, as indices into `colours`, of which
/// there are 1 to 256.
std::string GifFile(Size size, std::span<const std::uint8_t> pixels, const std::vector<GifColour>& colours);

}  // namespace orvanta
