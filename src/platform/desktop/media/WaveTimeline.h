#pragma once

#include <gst/gst.h>

#include "platform/desktop/media/WaveHeader.h"

namespace orvanta {

/// How many times longer a sound is than GStreamer 1.22 takes it for. It counts the samples in a block of
/// ADPCM as if there were two channels, so a mono sound seems to last half its time. 1 where nothing is
/// wrong.
double WaveStretch(const WaveHeader& wave);

/// Sets right all times that pass through `pad`, the output of the parser of wave files.
void StretchTimeline(GstPad* pad, double factor);

}  // namespace orvanta
