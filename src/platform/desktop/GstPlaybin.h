#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/desktop/FrameBox.h"
#include "platform/desktop/GstAudioSink.h"
#include "platform/desktop/NewsBox.h"
#include "platform/desktop/PlayerKind.h"

namespace orvanta {

/// GStreamer's `playbin` with our sinks, and the few things asked of it. Every call may take as long as the
/// drive and the sound server do. All times are in seconds.
class GstPlaybin {
 public:
  /// What it calls on GStreamer's threads.
  struct Listener {
    std::function<void()> onNews;         ///< The news box holds an end or a failure.
    std::function<bool()> playsOnceMore;  ///< The file has been read: is it to follow itself without a gap?
  };

  /// A `playbin` that could not be put together, for want of plugins, fails in `preroll`.
  GstPlaybin(PlayerKind kind, SoundOutput output, FrameBoxPtr frames, NewsBox& news, Listener listener);
  ~GstPlaybin();
  GstPlaybin(const GstPlaybin&) = delete;
  GstPlaybin& operator=(const GstPlaybin&) = delete;

  void setUri(std::string uri);
  void setVolume(int hundredthsOfDecibel) { sound_.setVolume(hundredthsOfDecibel); }

  /// Lets go of the file.
  void ready();
  /// Opens the file and waits for its first data; false if it cannot be played.
  bool preroll();
  void play();
  void pause();
  /// Goes there and waits for the data; false if the file cannot do that.
  bool seek(double seconds);

  std::optional<double> position() const;
  std::optional<double> duration() const;

 private:
  bool build(FrameBoxPtr frames);
  bool awaitData(std::chrono::milliseconds patience);
  NewsBox::News read(GstMessage* message) const;
  bool lacksDecoder(GstMessage* message) const;
  static GstBusSyncReply OnMessage(GstBus* bus, GstMessage* message, gpointer self);
  static void OnAboutToFinish(GstElement* playbin, gpointer self);

  const PlayerKind kind_;
  NewsBox& news_;
  const Listener listener_;
  std::string uri_;
  GstAudioSink sound_;
  GstHandle<GstElement> playbin_;
  GstHandle<GstBus> bus_;
};

}  // namespace orvanta
