#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/Geometry.h"

namespace orvanta {

/// A mono WAV file with 16-bit samples, made of samples from -1 to 1.
std::string WavFile(std::span<const float> samples, int samplesASecond);

/// An AVI file made of JPEG files (format: "AVI RIFF File Reference", Microsoft).
std::string AviFile(Size size, const std::vector<std::string>& pictures, int picturesASecond);

}  // namespace orvanta
