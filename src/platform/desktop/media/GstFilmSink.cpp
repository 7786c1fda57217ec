#include "platform/desktop/media/GstFilmSink.h"

#include <gst/app/gstappsink.h>
#include <gst/video/video.h>

#include "platform/desktop/window/FilmPicture.h"

namespace orvanta {
namespace {

// A picture that is later than this is dropped, since the next one is due.
constexpr GstClockTime kMaxLateness = 40 * GST_MSECOND;

/// A sample whose pixels are mapped for reading.
struct MappedFrame {
  GstHandle<GstSample> sample;
  GstVideoFrame frame{};
  ~MappedFrame() {
    if (frame.buffer) gst_video_frame_unmap(&frame);
  }
};

/// The size in square pixels: the height stays, and the width depends on the shape of the pixels.
Size ShownSize(const GstVideoInfo& info) {
  const auto width =
      gst_util_uint64_scale_int_round(static_cast<guint64>(info.width), info.par_n, info.par_d);
  return {static_cast<int>(width), info.height};
}

void ReleaseFrame(void* mapped) { std::unique_ptr<MappedFrame>(static_cast<MappedFrame*>(mapped)); }

PicturePtr Wrap(GstHandle<GstSample> sample) {
  auto mapped = std::make_unique<MappedFrame>();
  mapped->sample = std::move(sample);
  GstVideoInfo info;
  GstSample* raw = mapped->sample.get();
  if (!raw || !gst_sample_get_caps(raw) || !gst_video_info_from_caps(&info, gst_sample_get_caps(raw)))
    return {};
  if (!gst_video_frame_map(&mapped->frame, &info, gst_sample_get_buffer(raw), GST_MAP_READ)) return {};
  const auto* pixels = static_cast<const uchar*>(GST_VIDEO_FRAME_PLANE_DATA(&mapped->frame, 0));
  const int stride = GST_VIDEO_FRAME_PLANE_STRIDE(&mapped->frame, 0);
  // The bytes of BGRx are a little-endian 0xffRRGGBB word, whose high byte is ignored.
  QImage image(pixels, info.width, info.height, stride, QImage::Format_RGB32, ReleaseFrame, mapped.release());
  return std::make_shared<FilmPicture>(std::move(image), ShownSize(info));
}

GstFlowReturn Deliver(GstSample* sample, gpointer frames) {
  if (PicturePtr picture = Wrap(GstHandle<GstSample>(sample)))
    (*static_cast<FrameMailboxPtr*>(frames))->Put(std::move(picture));
  return GST_FLOW_OK;
}

GstFlowReturn OnSample(GstAppSink* sink, gpointer frames) {
  return Deliver(gst_app_sink_pull_sample(sink), frames);
}

// Called for the first picture, and for the one that is shown after a pause or a seek.
GstFlowReturn OnPreroll(GstAppSink* sink, gpointer frames) {
  return Deliver(gst_app_sink_pull_preroll(sink), frames);
}

void ReleaseFrames(gpointer frames) {
  std::unique_ptr<FrameMailboxPtr>(static_cast<FrameMailboxPtr*>(frames));
}

}  // namespace

GstHandle<GstElement> MakeFilmSink(FrameMailboxPtr frames) {
  GstHandle<GstElement> element = MakeElement("appsink");
  if (!element) return element;
  const GstHandle<GstCaps> caps(gst_caps_new_simple("video/x-raw", "format", G_TYPE_STRING, "BGRx", nullptr));
  g_object_set(element.get(), "caps", caps.get(), "drop", TRUE, "max-buffers", 1u, "sync", TRUE, "qos", TRUE,
               "max-lateness", static_cast<gint64>(kMaxLateness), "enable-last-sample", FALSE, nullptr);
  GstAppSinkCallbacks callbacks{};
  callbacks.new_preroll = OnPreroll;
  callbacks.new_sample = OnSample;
  auto owned = std::make_unique<FrameMailboxPtr>(std::move(frames));
  gst_app_sink_set_callbacks(GST_APP_SINK(element.get()), &callbacks, owned.release(), ReleaseFrames);
  return element;
}

GstHandle<GstElement> MakeNullSink() {
  GstHandle<GstElement> element = MakeElement("fakesink");
  if (element) g_object_set(element.get(), "sync", TRUE, "enable-last-sample", FALSE, nullptr);
  return element;
}

}  // namespace orvanta
