#pragma once

#include <gst/gst.h>

#include <filesystem>
#include <optional>

namespace orvanta {

/// How the sound in a wave file is stored (Microsoft, Multimedia Programming Interface 1.0).
struct WaveHeader {
  static constexpr int kMsAdpcm = 0x02, kImaAdpcm = 0x11;  ///< values of `format`

  int format = 0;
  int channels = 0;
  int blockAlign = 0;  ///< the length of a block, in bytes
};

/// Nothing if the file is not a wave file, whatever its name. All zero if its first chunk is not the format.
std::optional<WaveHeader> ReadWaveHeader(const std::filesystem::path& file);

/// The true length of a sound divided by the length that GStreamer 1.22 computes. It counts the samples in a
/// block of ADPCM as if there were always two channels, so it halves a mono sound. 1 if it is right.
double WaveStretch(const WaveHeader& wave);

/// Multiplies all times that leave through `pad`, the output of `wavparse`, and divides those of seeks.
void StretchTimeline(GstPad* pad, double factor);

}  // namespace orvanta
