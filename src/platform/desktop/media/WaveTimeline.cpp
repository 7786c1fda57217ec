#include "platform/desktop/media/WaveTimeline.h"

#include <array>
#include <fstream>
#include <memory>
#include <string_view>

#include "platform/desktop/media/GstHandles.h"

namespace orvanta {
namespace {

// -1 means a time that is not known or has no end.
gint64 Scaled(gint64 time, double factor) {
  return time < 0 ? time : static_cast<gint64>(static_cast<double>(time) * factor);
}

guint64 Scaled(guint64 time, double factor) {
  return static_cast<guint64>(Scaled(static_cast<gint64>(time), factor));
}

GstBuffer* Stretched(GstBuffer* buffer, double factor) {
  GstBuffer* own = gst_buffer_make_writable(buffer);
  GST_BUFFER_PTS(own) = Scaled(GST_BUFFER_PTS(own), factor);
  GST_BUFFER_DURATION(own) = Scaled(GST_BUFFER_DURATION(own), factor);
  return own;
}

GstEvent* StretchedSegment(GstEvent* event, double factor) {
  GstSegment segment;
  gst_event_copy_segment(event, &segment);
  if (segment.format == GST_FORMAT_TIME)
    for (guint64* time : {&segment.start, &segment.stop, &segment.time, &segment.position, &segment.duration})
      *time = Scaled(*time, factor);
  return gst_event_new_segment(&segment);
}

GstEvent* ShrunkSeek(GstEvent* event, double factor) {
  gdouble rate = 1;
  GstFormat format = GST_FORMAT_UNDEFINED;
  GstSeekFlags flags = GST_SEEK_FLAG_NONE;
  GstSeekType startType = GST_SEEK_TYPE_NONE, stopType = GST_SEEK_TYPE_NONE;
  gint64 start = 0, stop = 0;
  gst_event_parse_seek(event, &rate, &format, &flags, &startType, &start, &stopType, &stop);
  if (format != GST_FORMAT_TIME) return gst_event_ref(event);
  return gst_event_new_seek(rate, format, flags, startType, Scaled(start, 1 / factor), stopType,
                            Scaled(stop, 1 / factor));
}

void Replace(GstPadProbeInfo* info, GstEvent* event) {
  GstEvent* before = GST_PAD_PROBE_INFO_EVENT(info);
  gst_event_set_seqnum(event, gst_event_get_seqnum(before));
  info->data = event;
  gst_event_unref(before);
}

void StretchAnswer(GstQuery* query, double factor) {
  GstFormat format = GST_FORMAT_UNDEFINED;
  gint64 duration = -1;
  if (GST_QUERY_TYPE(query) != GST_QUERY_DURATION) return;
  gst_query_parse_duration(query, &format, &duration);
  if (format == GST_FORMAT_TIME) gst_query_set_duration(query, format, Scaled(duration, factor));
}

GstPadProbeReturn OnTraffic(GstPad*, GstPadProbeInfo* info, gpointer given) {
  const double factor = *static_cast<double*>(given);
  const auto is = [info](GstPadProbeType type) { return (GST_PAD_PROBE_INFO_TYPE(info) & type) == type; };
  if (is(GST_PAD_PROBE_TYPE_BUFFER)) {
    info->data = Stretched(GST_PAD_PROBE_INFO_BUFFER(info), factor);
  } else if (is(GST_PAD_PROBE_TYPE_QUERY_UPSTREAM)) {
    if (is(GST_PAD_PROBE_TYPE_PULL)) StretchAnswer(GST_PAD_PROBE_INFO_QUERY(info), factor);
  } else if (GstEvent* event = GST_PAD_PROBE_INFO_EVENT(info); GST_EVENT_TYPE(event) == GST_EVENT_SEGMENT) {
    Replace(info, StretchedSegment(event, factor));
  } else if (GST_EVENT_TYPE(event) == GST_EVENT_SEEK) {
    Replace(info, ShrunkSeek(event, factor));
  }
  return GST_PAD_PROBE_OK;
}

void Forget(gpointer factor) { std::unique_ptr<double>(static_cast<double*>(factor)); }

/// The number of samples in a block, divided by the number that GStreamer counts: it leaves out those in the
/// block's head, and counts the two samples of a byte as if they belonged to two channels.
double Stretch(const WaveHeader& wave, int headBytes, int headSamples) {
  const int body = wave.blockAlign - headBytes * wave.channels;
  if (wave.channels < 1 || body < 2) return 1;
  const double samples = static_cast<double>(body) * 2 / wave.channels + headSamples;
  const int counted = body / 2 * 2;
  return samples / counted;
}

}  // namespace

std::optional<WaveHeader> ReadWaveHeader(const std::filesystem::path& file) {
  std::array<char, 36> head{};
  std::ifstream(file, std::ios::binary).read(head.data(), head.size());
  const std::string_view view(head.data(), head.size());
  if (!view.starts_with("RIFF") || view.substr(8, 4) != "WAVE") return std::nullopt;
  if (view.substr(12, 4) != "fmt ") return WaveHeader{};
  const auto word = [&view](std::size_t at) {
    return static_cast<unsigned char>(view[at]) | static_cast<unsigned char>(view[at + 1]) << 8;
  };
  return WaveHeader{.format = word(20), .channels = word(22), .blockAlign = word(32)};
}

double WaveStretch(const WaveHeader& wave) {
  if (wave.format == WaveHeader::kMsAdpcm) return Stretch(wave, 7, 2);
  if (wave.format == WaveHeader::kImaAdpcm) return Stretch(wave, 4, 1);
  return 1;
}

void StretchTimeline(GstPad* pad, double factor) {
  constexpr auto kTraffic = static_cast<GstPadProbeType>(
      GST_PAD_PROBE_TYPE_BUFFER | GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM | GST_PAD_PROBE_TYPE_EVENT_UPSTREAM |
      GST_PAD_PROBE_TYPE_QUERY_UPSTREAM | GST_PAD_PROBE_TYPE_PUSH | GST_PAD_PROBE_TYPE_PULL);
  gst_pad_add_probe(pad, kTraffic, OnTraffic, std::make_unique<double>(factor).release(), Forget);
}

}  // namespace orvanta
