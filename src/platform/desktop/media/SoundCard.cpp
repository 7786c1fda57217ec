#include "platform/desktop/media/SoundCard.h"

#include <alsa/asoundlib.h>
#include <pulse/pulseaudio.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

namespace orvanta {
namespace {

using Clock = std::chrono::steady_clock;

// The sink that the server loads if it has no other (module-always-sink of PulseAudio; PipeWire has it too).
constexpr std::string_view kDummySink = "auto_null";

struct PulseRelease {
  void operator()(pa_mainloop* loop) const { pa_mainloop_free(loop); }
  void operator()(pa_operation* operation) const { pa_operation_unref(operation); }
  void operator()(pa_context* context) const {
    pa_context_disconnect(context);
    pa_context_unref(context);
  }
};

template <class T>
using PulseHandle = std::unique_ptr<T, PulseRelease>;

/// One question to the sound server. The loop is declared first: it must outlive the connection.
struct PulseQuery {
  Clock::time_point deadline;
  PulseHandle<pa_mainloop> loop{pa_mainloop_new()};
  PulseHandle<pa_context> context{pa_context_new(pa_mainloop_get_api(loop.get()), "Orvanta")};
  bool realSink = false;
};

/// Handles what the server sends until `done` holds; false if the deadline passes first.
template <class Done>
bool Await(PulseQuery& query, Done done) {
  while (!done()) {
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(query.deadline - Clock::now());
    if (left.count() <= 0) return false;
    if (pa_mainloop_prepare(query.loop.get(), static_cast<int>(left.count())) < 0) return false;
    if (pa_mainloop_poll(query.loop.get()) < 0) return false;
    if (pa_mainloop_dispatch(query.loop.get()) < 0) return false;
  }
  return true;
}

void NoteSink(pa_context*, const pa_sink_info* sink, int end, void* query) {
  if (end == 0 && sink->name != kDummySink) static_cast<PulseQuery*>(query)->realSink = true;
}

enum class Answer { RealSink, DummyOnly, NoServer, Timeout };

Answer AskSinks(PulseQuery& query) {
  const PulseHandle<pa_operation> asked(pa_context_get_sink_info_list(query.context.get(), NoteSink, &query));
  if (!asked) return Answer::NoServer;
  const auto over = [&asked] { return pa_operation_get_state(asked.get()) != PA_OPERATION_RUNNING; };
  if (!Await(query, over)) return Answer::Timeout;
  return query.realSink ? Answer::RealSink : Answer::DummyOnly;
}

Answer AskServer(std::chrono::milliseconds timeout) {
  PulseQuery query{.deadline = Clock::now() + timeout};
  pa_context* context = query.context.get();
  if (pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) return Answer::NoServer;
  const auto settled = [context] {
    return pa_context_get_state(context) == PA_CONTEXT_READY ||
           !PA_CONTEXT_IS_GOOD(pa_context_get_state(context));
  };
  if (!Await(query, settled)) return Answer::Timeout;
  return pa_context_get_state(context) == PA_CONTEXT_READY ? AskSinks(query) : Answer::NoServer;
}

bool CardPlays(int card) {
  snd_ctl_t* control = nullptr;
  if (snd_ctl_open(&control, ("hw:" + std::to_string(card)).c_str(), SND_CTL_NONBLOCK) < 0) return false;
  const std::unique_ptr<snd_ctl_t, int (*)(snd_ctl_t*)> closer(control, snd_ctl_close);
  snd_pcm_info_t* info = nullptr;
  if (snd_pcm_info_malloc(&info) < 0) return false;
  const std::unique_ptr<snd_pcm_info_t, void (*)(snd_pcm_info_t*)> freer(info, snd_pcm_info_free);
  for (int device = -1; snd_ctl_pcm_next_device(control, &device) == 0 && device >= 0;) {
    snd_pcm_info_set_device(info, static_cast<unsigned>(device));
    snd_pcm_info_set_subdevice(info, 0);
    snd_pcm_info_set_stream(info, SND_PCM_STREAM_PLAYBACK);
    if (snd_ctl_pcm_info(control, info) == 0) return true;
  }
  return false;
}

bool AnyCardPlays() {
  for (int card = -1; snd_card_next(&card) == 0 && card >= 0;)
    if (CardPlays(card)) return true;
  return false;
}

}  // namespace

SoundOutput FindSoundOutput(std::chrono::milliseconds timeout) {
  switch (AskServer(timeout)) {
    case Answer::RealSink: return SoundOutput::Pulse;
    case Answer::NoServer: return AnyCardPlays() ? SoundOutput::Alsa : SoundOutput::None;
    case Answer::DummyOnly:
    case Answer::Timeout: break;
  }
  return SoundOutput::None;
}

}  // namespace orvanta
