#include "disctool/gallery/FilmStill.h"

#include <algorithm>
#include <system_error>

#include "platform/desktop/media/GstFilmSink.h"
#include "platform/desktop/media/MediaSource.h"

namespace orvanta {
namespace {

// A value of GstPlayFlags, which is not declared in any header.
constexpr guint kPlayVideo = 0x1;

constexpr GstClockTime kTimeout = 5 * GST_SECOND;
constexpr gint64 kPlace = 3 * GST_SECOND;

/// Whether the pipeline has paused with a picture in its sink.
bool Settled(GstElement* pipeline) {
  return gst_element_get_state(pipeline, nullptr, nullptr, kTimeout) == GST_STATE_CHANGE_SUCCESS;
}

void Show(GstElement* playbin) {
  if (gst_element_set_state(playbin, GST_STATE_PAUSED) == GST_STATE_CHANGE_FAILURE || !Settled(playbin))
    return;
  gint64 length = 0;
  if (!gst_element_query_duration(playbin, GST_FORMAT_TIME, &length)) return;
  const auto flags = static_cast<GstSeekFlags>(GST_SEEK_FLAG_FLUSH | GST_SEEK_FLAG_ACCURATE);
  if (gst_element_seek_simple(playbin, GST_FORMAT_TIME, flags, std::min(kPlace, length / 2)))
    Settled(playbin);
}

}  // namespace

PicturePtr FilmStill(const std::filesystem::path& film) {
  if (!gst_is_initialized() && !gst_init_check(nullptr, nullptr, nullptr)) return nullptr;
  // Opening a FIFO would wait for a writer, and a device may be endless.
  std::error_code noFile;
  if (!std::filesystem::is_regular_file(film, noFile)) return nullptr;
  const std::string uri = FindMediaSource(film).uri;
  const GstHandle<GstElement> playbin = MakeElement("playbin");
  FrameNotifier unheard{[] {}};
  const auto frames = std::make_shared<FrameMailbox>(unheard);
  const GstHandle<GstElement> sink = MakeFilmSink(frames), silence = MakeElement("fakesink");
  if (uri.empty() || !playbin || !sink || !silence) return nullptr;
  g_object_set(playbin.get(), "uri", uri.c_str(), "flags", kPlayVideo, "video-sink", sink.get(), "audio-sink",
               silence.get(), nullptr);
  Show(playbin.get());
  gst_element_set_state(playbin.get(), GST_STATE_NULL);
  frames->Close();
  return frames->Newest();
}

}  // namespace orvanta
