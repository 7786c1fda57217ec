// Decodes sounds and films from beginning to end.

#include <gst/gst.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>

#include "disctool/Translation.h"
#include "disctool/tool/DesktopProbe.h"
#include "platform/FileKind.h"
#include "platform/desktop/media/MediaSource.h"

namespace orvanta {
namespace {

struct StopAndFree {
  void operator()(GstElement* pipeline) const {
    gst_element_set_state(pipeline, GST_STATE_NULL);
    gst_object_unref(pipeline);
  }
};
using Pipeline = std::unique_ptr<GstElement, StopAndFree>;

struct FreeMessage {
  void operator()(GstMessage* message) const { gst_message_unref(message); }
};
using Message = std::unique_ptr<GstMessage, FreeMessage>;

struct FreeBus {
  void operator()(GstBus* bus) const { gst_object_unref(bus); }
};

/// Decoders conceal damage unless they are told to report the first error.
void ReportFaults(GstElement*, GstElement* element, gpointer) {
  constexpr const char* kLimit = "max-errors";
  if (g_object_class_find_property(G_OBJECT_GET_CLASS(element), kLimit))
    g_object_set(element, kLimit, 0, nullptr);
}

/// WAV and AVI files state their length at the beginning, but demuxers rely on the end of the file. Returns
/// what is missing; empty if nothing is.
std::string MissingOfRiff(const std::filesystem::path& file) {
  constexpr std::size_t kHeader = 8;
  const FileBytes bytes = BytesOfFile(file);
  const std::string header = bytes.read(0, kHeader);
  if (header.size() < kHeader || !header.starts_with("RIFF")) return {};
  std::uint64_t claimed = 0;
  for (std::size_t i = kHeader; i-- > 4;) claimed = claimed << 8 | static_cast<unsigned char>(header[i]);
  // A recording whose length was not known in advance has this length.
  constexpr std::uint64_t kUnknown = 0xFFFFFFFF;
  if (claimed == 0 || claimed == kUnknown || claimed + kHeader <= bytes.size + 1) return {};
  return Translated("it has %1 of %2 bytes", bytes.size, claimed + kHeader);
}

/// A pipeline that decodes as fast as the machine can and discards the result.
Pipeline MakeDecoder(const std::string& uri) {
  Pipeline decoder(gst_element_factory_make("playbin", nullptr));
  if (!decoder) return decoder;
  for (const char* place : {"audio-sink", "video-sink", "text-sink"}) {
    GstElement* sink = gst_element_factory_make("fakesink", nullptr);
    if (sink) g_object_set(sink, "sync", FALSE, nullptr);
    g_object_set(decoder.get(), place, sink, nullptr);
  }
  g_signal_connect(decoder.get(), "element-setup", G_CALLBACK(ReportFaults), nullptr);
  g_object_set(decoder.get(), "uri", uri.c_str(), nullptr);
  return decoder;
}

/// The answer in nanoseconds; -1 if it is not known.
gint64 Asked(GstElement* decoder, gboolean (*query)(GstElement*, GstFormat, gint64*)) {
  gint64 value = -1;
  return query(decoder, GST_FORMAT_TIME, &value) != FALSE ? value : -1;
}

std::string TextOf(GstMessage* message) {
  GError* error = nullptr;
  if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR) {
    gst_message_parse_error(message, &error, nullptr);
  } else {
    gst_message_parse_warning(message, &error, nullptr);
  }
  const std::string text = error ? error->message : "";
  g_clear_error(&error);
  return text;
}

class Decoding {
 public:
  explicit Decoding(const std::string& uri) : decoder_(MakeDecoder(uri)) {
    if (decoder_) bus_.reset(gst_element_get_bus(decoder_.get()));
  }

  std::string Problem() {
    if (!decoder_) return {};
    gst_element_set_state(decoder_.get(), GST_STATE_PLAYING);
    while (true) {
      constexpr auto kWanted = static_cast<GstMessageType>(GST_MESSAGE_EOS | GST_MESSAGE_ERROR |
                                                           GST_MESSAGE_WARNING | GST_MESSAGE_ASYNC_DONE);
      const Message message(gst_bus_timed_pop_filtered(bus_.get(), GST_SECOND, kWanted));
      NoteProgress();
      if (!message && still_ >= kPatience)
        return Translated("it stands still after %1 s", Seconds(position_));
      if (!message) continue;
      if (GST_MESSAGE_TYPE(message.get()) == GST_MESSAGE_EOS) return AtTheEnd();
      if (GST_MESSAGE_TYPE(message.get()) != GST_MESSAGE_ASYNC_DONE) return TextOf(message.get());
    }
  }

 private:
  static constexpr int kPatience = 10;  // seconds

  static std::int64_t Seconds(gint64 time) { return std::max<gint64>(0, time) / GST_SECOND; }

  void NoteProgress() {
    length_ = std::max(length_, Asked(decoder_.get(), gst_element_query_duration));
    const gint64 now = Asked(decoder_.get(), gst_element_query_position);
    still_ = now > position_ ? 0 : still_ + 1;
    position_ = std::max(position_, now);
  }

  /// A truncated file ends early without any error.
  std::string AtTheEnd() const {
    const gint64 tolerated = std::max<gint64>(GST_SECOND, length_ / 50);
    if (length_ < 0 || position_ < 0 || position_ + tolerated >= length_) return {};
    return Translated("it ends after %1 of %2 s", Seconds(position_), Seconds(length_));
  }

  const Pipeline decoder_;
  std::unique_ptr<GstBus, FreeBus> bus_;
  gint64 length_ = -1, position_ = -1;
  int still_ = 0;
};

}  // namespace

std::string DesktopProbe::DecodingProblem(const std::filesystem::path& file) {
  if (!gst_is_initialized() && !gst_init_check(nullptr, nullptr, nullptr)) return {};
  if (std::string missing = MissingOfRiff(file); !missing.empty()) return missing;
  return Decoding(FindMediaSource(file).uri).Problem();
}

}  // namespace orvanta
