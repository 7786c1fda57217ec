#pragma once

#include <filesystem>

#include "platform/Picture.h"

namespace orvanta {

/// A picture from a film: the one at the third second, since many films begin in the dark, or in the middle
/// of a shorter film. Null if the file is not a film, or if GStreamer has not decoded a picture in five
/// seconds.
PicturePtr FilmStill(const std::filesystem::path& film);

}  // namespace orvanta
