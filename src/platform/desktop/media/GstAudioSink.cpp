#include "platform/desktop/media/GstAudioSink.h"

#include <algorithm>
#include <cmath>

#include "platform/desktop/media/GstFilmSink.h"

namespace orvanta {
namespace {

constexpr int kSilent = -10000;
constexpr double kHundredthsPerDecade = 2000;  // 20 dB less is a tenth of the amplitude

// In microseconds. Less makes the sound stutter on a busy machine, more makes the volume sluggish.
constexpr gint64 kBufferTime = 80'000;
constexpr gint64 kLatencyTime = 20'000;

GstHandle<GstElement> MakeDevice(SoundOutput output) {
  GstHandle<GstElement> device;
  if (output == SoundOutput::Pulse) device = MakeElement("pulsesink");
  if (output == SoundOutput::Alsa) device = MakeElement("alsasink");
  if (!device) return MakeNullSink();
  g_object_set(device.get(), "buffer-time", kBufferTime, "latency-time", kLatencyTime, nullptr);
  return device;
}

}  // namespace

GstAudioSink::GstAudioSink(SoundOutput output) : volume_(MakeElement("volume")) {
  const GstHandle<GstElement> convert = MakeElement("audioconvert");
  const GstHandle<GstElement> device = MakeDevice(output);
  if (!convert || !volume_ || !device) return;
  bin_.reset(GST_ELEMENT(gst_object_ref_sink(gst_bin_new(nullptr))));
  gst_bin_add_many(GST_BIN(bin_.get()), convert.get(), volume_.get(), device.get(), nullptr);
  gst_element_link_many(convert.get(), volume_.get(), device.get(), nullptr);
  GstPad* inside = gst_element_get_static_pad(convert.get(), "sink");
  gst_element_add_pad(bin_.get(), gst_ghost_pad_new("sink", inside));
  gst_object_unref(inside);
}

void GstAudioSink::SetVolume(int hundredthsOfDecibel) {
  const int wanted = std::clamp(hundredthsOfDecibel, kSilent, 0);
  const double linear = wanted == kSilent ? 0 : std::pow(10, wanted / kHundredthsPerDecade);
  if (volume_) g_object_set(volume_.get(), "volume", linear, nullptr);
}

}  // namespace orvanta
