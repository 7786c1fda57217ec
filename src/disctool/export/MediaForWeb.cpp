#include "disctool/export/MediaForWeb.h"

#include <gst/pbutils/pbutils.h>

#include <array>
#include <cstring>
#include <fstream>
#include <system_error>

#include "disctool/Translation.h"
#include "platform/AsciiText.h"
#include "platform/desktop/media/GstHandles.h"
#include "platform/desktop/media/MediaSource.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

constexpr GstClockTime kPatience = 5 * GST_SECOND;
constexpr GstClockTime kReportEvery = 200 * GST_MSECOND;
/// A file that yields nothing for so long is taken for one that never will.
constexpr GstClockTime kStalled = 30 * GST_SECOND;

constexpr const char* kSoundPipeline =
    "uridecodebin name=in ! audioconvert ! audioresample ! opusenc bitrate=128000 ! oggmux ! filesink "
    "name=out";
// Browsers show square pixels alone.
constexpr const char* kPictures =
    "uridecodebin name=in  in. ! queue ! videoconvert ! videoscale ! video/x-raw,pixel-aspect-ratio=1/1 "
    "! vp8enc deadline=1 cpu-used=4 end-usage=cq cq-level=16 target-bitrate=4000000 keyframe-max-dist=100 "
    "! queue ! webmmux name=mux ! filesink name=out";
constexpr const char* kFilmSound =
    "  in. ! queue ! audioconvert ! audioresample ! opusenc bitrate=128000 ! queue ! mux.";

struct Discovered {
  bool sound = false, pictures = false;
};

Discovered Discover(const std::string& uri) {
  Discovered found;
  GstDiscoverer* const discoverer = gst_discoverer_new(kPatience, nullptr);
  if (!discoverer) return found;
  GstDiscovererInfo* const info = gst_discoverer_discover_uri(discoverer, uri.c_str(), nullptr);
  if (info && gst_discoverer_info_get_result(info) == GST_DISCOVERER_OK) {
    const auto any = [](GList* streams) {
      const bool some = streams != nullptr;
      gst_discoverer_stream_info_list_free(streams);
      return some;
    };
    found = {any(gst_discoverer_info_get_audio_streams(info)),
             any(gst_discoverer_info_get_video_streams(info))};
  }
  if (info) gst_discoverer_info_unref(info);
  g_object_unref(discoverer);
  return found;
}

/// "Multimedia Programming Interface and Data Specifications 1.0": the first chunk of most files is the
/// format, whose first number is 1 for plain samples.
bool IsPlainWave(const fs::path& file) {
  std::array<char, 22> head{};
  std::ifstream(file, std::ios::binary).read(head.data(), static_cast<std::streamsize>(head.size()));
  return std::memcmp(head.data(), "RIFF", 4) == 0 && std::memcmp(&head[8], "WAVEfmt ", 8) == 0 &&
         head[20] == 1 && head[21] == 0;
}

bool Ready() { return gst_is_initialized() || gst_init_check(nullptr, nullptr, nullptr); }

/// Runs the pipeline to its end. Gives what went wrong.
std::string Run(GstElement* pipeline, const std::function<void(double)>& done,
                const std::atomic<bool>& stop) {
  const GstHandle<GstBus> bus(gst_element_get_bus(pipeline));
  gst_element_set_state(pipeline, GST_STATE_PLAYING);
  GstClockTime still = 0;
  gint64 before = -1;
  while (!stop) {
    const GstHandle<GstMessage> message(gst_bus_timed_pop_filtered(
        bus.get(), kReportEvery, static_cast<GstMessageType>(GST_MESSAGE_EOS | GST_MESSAGE_ERROR)));
    if (message && GST_MESSAGE_TYPE(message.get()) == GST_MESSAGE_EOS) return {};
    if (message) {
      GError* error = nullptr;
      gst_message_parse_error(message.get(), &error, nullptr);
      const GstHandle<GError> kept(error);
      return error->message;
    }
    gint64 place = 0, length = 0;
    gst_element_query_position(pipeline, GST_FORMAT_TIME, &place);
    gst_element_query_duration(pipeline, GST_FORMAT_TIME, &length);
    if (length > 0) done(std::min(1.0, static_cast<double>(place) / static_cast<double>(length)));
    still = place == before ? still + kReportEvery : 0;
    before = place;
    if (still > kStalled) return Translated("it cannot be read to its end");
  }
  return Translated("interrupted");
}

}  // namespace

WebMedia WebMediaOf(const fs::path& file) {
  const std::string extension = file.extension().string();
  if (EqualNoCaseAscii(extension, ".mp3") || EqualNoCaseAscii(extension, ".webm") || IsPlainWave(file))
    return WebMedia::AsItIs;
  if (!Ready()) return WebMedia::Neither;
  const Discovered found = Discover(FindMediaSource(file).uri);
  if (found.pictures) return WebMedia::Film;
  return found.sound ? WebMedia::Sound : WebMedia::Neither;
}

std::string ConvertForWeb(const fs::path& file, WebMedia as, const fs::path& target,
                          const std::function<void(double)>& done, const std::atomic<bool>& stop) {
  if (!Ready()) return Translated("GStreamer cannot be started");
  const std::string uri = FindMediaSource(file).uri;
  std::string description = kSoundPipeline;
  if (as == WebMedia::Film) description = kPictures;
  if (as == WebMedia::Film && Discover(uri).sound) description += kFilmSound;
  GError* error = nullptr;
  const GstHandle<GstElement> pipeline(gst_parse_launch(description.c_str(), &error));
  const GstHandle<GError> kept(error);
  if (!pipeline || error) return error ? error->message : Translated("GStreamer cannot be started");
  const fs::path part = target.string() + ".part";
  const GstHandle<GstElement> in(gst_bin_get_by_name(GST_BIN(pipeline.get()), "in")),
      out(gst_bin_get_by_name(GST_BIN(pipeline.get()), "out"));
  g_object_set(in.get(), "uri", uri.c_str(), nullptr);
  g_object_set(out.get(), "location", part.c_str(), nullptr);
  std::string problem = Run(pipeline.get(), done, stop);
  gst_element_set_state(pipeline.get(), GST_STATE_NULL);
  std::error_code failed;
  if (problem.empty()) fs::rename(part, target, failed);
  if (failed) problem = failed.message();
  fs::remove(part, failed);
  return problem;
}

}  // namespace orvanta
