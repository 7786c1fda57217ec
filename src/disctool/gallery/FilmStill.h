#pragma once

#include <filesystem>

#include "platform/Picture.h"

namespace orvanta {

/// A picture out of a film: that of its third second, since many begin in the dark, or of the middle of a
/// shorter one. Null for what is no film, and for one that GStreamer has no picture of in five seconds.
PicturePtr FilmStill(const std::filesystem::path& film);

}  // namespace orvanta
