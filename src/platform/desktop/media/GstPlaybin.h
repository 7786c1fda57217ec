#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/MoviePlayer.h"
#include "platform/desktop/media/BusEvents.h"
#include "platform/desktop/media/FrameMailbox.h"
#include "platform/desktop/media/GstAudioSink.h"
#include "platform/desktop/media/MediaSource.h"

namespace orvanta {

/// GStreamer's `playbin` with our sinks, and the few operations that we need. Every call may take as long as
/// the drive and the sound server do. All times are in seconds.
class GstPlaybin {
 public:
  /// Functions that it calls on GStreamer's threads.
  struct Listener {
    std::function<void()> onBusEvent;     ///< `BusEvents` has an end or a failure
    std::function<bool()> playsOnceMore;  ///< the file has been read: is it to be repeated without a gap?
  };

  /// If `playbin` or a sink cannot be created because a plugin is missing, `Preroll` fails.
  GstPlaybin(MovieKind kind, SoundOutput output, FrameMailboxPtr frames, BusEvents& events,
             Listener listener);
  ~GstPlaybin();
  GstPlaybin(const GstPlaybin&) = delete;
  GstPlaybin& operator=(const GstPlaybin&) = delete;

  void SetSource(MediaSource source);
  void SetVolume(int hundredthsOfDecibel) { sound_.SetVolume(hundredthsOfDecibel); }

  /// Releases the file.
  void Ready();
  /// Opens the file and waits for its first data; false if it cannot be played.
  bool Preroll();
  void Play();
  void Pause();
  /// Goes to a position and waits for its data; false if the file cannot do that.
  bool Seek(double seconds);

  std::optional<double> Position() const;
  std::optional<double> Duration() const;

 private:
  bool Build(FrameMailboxPtr frames);
  bool AwaitData(std::chrono::milliseconds timeout);
  BusEvents::Flags Read(GstMessage* message) const;
  bool LacksDecoder(GstMessage* message) const;
  static GstBusSyncReply OnMessage(GstBus* bus, GstMessage* message, gpointer self);
  static void OnAboutToFinish(GstElement* playbin, gpointer self);
  static void OnElement(GstElement* playbin, GstElement* element, gpointer self);

  const MovieKind kind_;
  BusEvents& events_;
  const Listener listener_;
  MediaSource source_;
  GstAudioSink sound_;
  GstHandle<GstElement> playbin_;
  GstHandle<GstBus> bus_;
};

}  // namespace orvanta
