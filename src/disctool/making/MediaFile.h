#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/Geometry.h"

namespace orvanta {

/// A WAV file of one channel of 16-bit samples from -1 to 1.
std::string WavFile(std::span<const float> samples, int samplesASecond);

/// An AVI file of pictures that are JPEG files (the format of "AVI RIFF File Reference", Microsoft).
std::string AviFile(Size size, const std::vector<std::string>& pictures, int picturesASecond);

}  // namespace orvanta
