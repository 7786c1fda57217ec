#include "platform/desktop/media/GstPlaybin.h"

#include <string_view>
#include <utility>

#include "platform/desktop/media/GstFilmSink.h"
#include "platform/desktop/media/WaveTimeline.h"

namespace orvanta {
namespace {

// A value of GstPlayFlags, which is not declared in any header.
constexpr guint kPlayVideo = 0x1;
constexpr guint kPlayAudio = 0x2;

// A slow drive may take long to deliver the first data; only the player's own thread waits for it.
constexpr std::chrono::hours kPrerollTimeout{1};
constexpr std::chrono::seconds kSeekTimeout{2};
constexpr std::chrono::milliseconds kPollInterval{250};
constexpr GstClockTime kSettleTimeout = GST_SECOND;

std::optional<double> Seconds(gboolean known, gint64 nanoseconds) {
  if (!known || nanoseconds < 0) return std::nullopt;
  return static_cast<double>(nanoseconds) / static_cast<double>(GST_SECOND);
}

gboolean NoteTask(GstElement*, GstPad* pad, gpointer runs) {
  if (gst_pad_get_task_state(pad) == GST_TASK_STARTED) *static_cast<bool*>(runs) = true;
  return TRUE;
}

void NoteTasks(const GValue* element, gpointer runs) {
  gst_element_foreach_pad(GST_ELEMENT(g_value_get_object(element)), NoteTask, runs);
}

/// Whether anything in there is still reading, or waiting for data.
bool TasksRun(GstElement* bin) {
  bool runs = false;
  GstIterator* elements = gst_bin_iterate_recurse(GST_BIN(bin));
  const bool looked = gst_iterator_foreach(elements, NoteTasks, &runs) == GST_ITERATOR_DONE;
  gst_iterator_free(elements);
  return runs || !looked;
}

}  // namespace

GstPlaybin::GstPlaybin(MovieKind kind, SoundOutput output, FrameMailboxPtr frames, BusEvents& events,
                       Listener listener)
    : kind_(kind),
      events_(events),
      listener_(std::move(listener)),
      sound_(output),
      playbin_(MakeElement("playbin")) {
  if (!Build(std::move(frames))) playbin_.reset();
}

bool GstPlaybin::Build(FrameMailboxPtr frames) {
  // A player of sound also has a branch for pictures: without it, files with a picture take a second to
  // start.
  const GstHandle<GstElement> pictures =
      kind_ == MovieKind::Film ? MakeFilmSink(std::move(frames)) : MakeNullSink();
  if (!playbin_ || !pictures || !sound_.Element()) return false;
  g_object_set(playbin_.get(), "flags", kPlayVideo | kPlayAudio, "audio-sink", sound_.Element(), "video-sink",
               pictures.get(), nullptr);
  g_signal_connect(playbin_.get(), "about-to-finish", G_CALLBACK(OnAboutToFinish), this);
  g_signal_connect(playbin_.get(), "element-setup", G_CALLBACK(OnElement), this);
  bus_.reset(gst_element_get_bus(playbin_.get()));
  gst_bus_set_sync_handler(bus_.get(), OnMessage, this, nullptr);
  return true;
}

GstPlaybin::~GstPlaybin() {
  if (!playbin_) return;
  gst_element_set_state(playbin_.get(), GST_STATE_NULL);
  gst_bus_set_sync_handler(bus_.get(), nullptr, nullptr, nullptr);
}

void GstPlaybin::SetSource(MediaSource source) {
  source_ = std::move(source);
  if (playbin_) g_object_set(playbin_.get(), "uri", source_.uri.c_str(), nullptr);
}

void GstPlaybin::Ready() {
  gst_element_set_state(playbin_.get(), GST_STATE_READY);
  events_.Take();
}

bool GstPlaybin::Preroll() {
  if (!playbin_ || source_.uri.empty() || events_.Take().abandoned) return false;
  const auto change = gst_element_set_state(playbin_.get(), GST_STATE_PAUSED);
  if (change == GST_STATE_CHANGE_ASYNC) return AwaitData(kPrerollTimeout);
  return change != GST_STATE_CHANGE_FAILURE;
}

void GstPlaybin::Play() { gst_element_set_state(playbin_.get(), GST_STATE_PLAYING); }

void GstPlaybin::Pause() { gst_element_set_state(playbin_.get(), GST_STATE_PAUSED); }

bool GstPlaybin::Seek(double seconds) {
  events_.Take();  // an end reported before the seek no longer counts
  const auto flags = static_cast<GstSeekFlags>(GST_SEEK_FLAG_FLUSH | GST_SEEK_FLAG_ACCURATE);
  const auto place = static_cast<gint64>(seconds * static_cast<double>(GST_SECOND));
  if (!gst_element_seek_simple(playbin_.get(), GST_FORMAT_TIME, flags, place)) return false;
  const bool there = AwaitData(kSeekTimeout);
  // A pause that overtakes the return to playing would measure the new position by the clock of the old one.
  gst_element_get_state(playbin_.get(), nullptr, nullptr, kSettleTimeout);
  return there;
}

std::optional<double> GstPlaybin::Position() const {
  gint64 place = -1;
  const gboolean known = gst_element_query_position(playbin_.get(), GST_FORMAT_TIME, &place);
  return Seconds(known, place);
}

std::optional<double> GstPlaybin::Duration() const {
  gint64 length = -1;
  const gboolean known = gst_element_query_duration(playbin_.get(), GST_FORMAT_TIME, &length);
  return Seconds(known, length);
}

bool GstPlaybin::AwaitData(std::chrono::milliseconds timeout) {
  int idle = 0;
  for (std::chrono::milliseconds waited{0}; waited < timeout && idle < 2; waited += kPollInterval) {
    const BusEvents::Flags flags = events_.Await(kPollInterval);
    if (flags.failed || flags.noDecoder || flags.abandoned) return false;
    if (flags.dataReady || flags.ended) return true;
    // The error report of a broken file can get lost: the demuxer fails while it is still being connected.
    idle = TasksRun(playbin_.get()) ? 0 : idle + 1;
  }
  return false;
}

/// Whether the missing decoder is for what this player plays; subtitles or a cover can be left out.
bool GstPlaybin::LacksDecoder(GstMessage* message) const {
  const GstStructure* details = gst_message_get_structure(message);
  if (!details || !gst_structure_has_name(details, "missing-plugin")) return false;
  GstCaps* caps = nullptr;
  if (!gst_structure_get(details, "detail", GST_TYPE_CAPS, &caps, nullptr)) return false;
  const GstHandle<GstCaps> owner(caps);
  if (gst_caps_is_empty(caps) || gst_caps_is_any(caps)) return false;
  const std::string_view name = gst_structure_get_name(gst_caps_get_structure(caps, 0));
  return name.starts_with(kind_ == MovieKind::Film ? "video/" : "audio/");
}

BusEvents::Flags GstPlaybin::Read(GstMessage* message) const {
  switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_ASYNC_DONE: return {.dataReady = true};
    case GST_MESSAGE_ELEMENT: return {.noDecoder = LacksDecoder(message)};
    case GST_MESSAGE_EOS: return {.ended = true};
    case GST_MESSAGE_ERROR: return {.failed = true};
    default: return {};
  }
}

GstBusSyncReply GstPlaybin::OnMessage(GstBus*, GstMessage* message, gpointer self) {
  const auto& own = *static_cast<GstPlaybin*>(self);
  const BusEvents::Flags flags = own.Read(message);
  own.events_.Add(flags);
  if (flags.ended || flags.failed) own.listener_.onBusEvent();
  gst_message_unref(message);
  return GST_BUS_DROP;
}

void GstPlaybin::OnAboutToFinish(GstElement* playbin, gpointer self) {
  auto& own = *static_cast<GstPlaybin*>(self);
  if (own.listener_.playsOnceMore()) g_object_set(playbin, "uri", own.source_.uri.c_str(), nullptr);
}

void GstPlaybin::OnElement(GstElement*, GstElement* element, gpointer self) {
  const double stretch = static_cast<GstPlaybin*>(self)->source_.waveStretch;
  GstElementFactory* factory = gst_element_get_factory(element);
  if (stretch == 1 || !factory || std::string_view(GST_OBJECT_NAME(factory)) != "wavparse") return;
  GstPad* sound = gst_element_get_static_pad(element, "src");
  StretchTimeline(sound, stretch);
  gst_object_unref(sound);
}

}  // namespace orvanta
