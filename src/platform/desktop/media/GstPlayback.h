#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "platform/MoviePlayer.h"
#include "platform/desktop/media/FrameMailbox.h"

namespace orvanta {

/// One file being played on a thread of its own, so that neither a drive that has stopped nor a sound server
/// that hangs holds up the program. All calls come from the program's thread. Orders return at once and are
/// carried out one after the other; what can be read is the outcome that they are on the way to.
class GstPlayback {
 public:
  /// Settings that a player keeps from file to file.
  struct Settings {
    int volume = 0;
    int playCount = 1;
  };

  /// Loads `file` and plays it.
  GstPlayback(MovieKind kind, const std::filesystem::path& file, const Settings& settings,
              FrameMailboxPtr frames);
  /// Waits for the end of it all, but at most a second: a thread that hangs is left to itself.
  ~GstPlayback();
  GstPlayback(const GstPlayback&) = delete;
  GstPlayback& operator=(const GstPlayback&) = delete;

  /// Returns as soon as the first data is there, or it is clear that none will come, or the time is up.
  void AwaitFirstData(std::chrono::milliseconds timeout) const;

  void Run();
  void Pause();
  void Stop();
  void SetPosition(double seconds);
  void Apply(const Settings& settings);

  /// `NoFile` for a file that has turned out not to play.
  MovieState State() const;
  /// Stays true when the file is lost later on.
  bool Loaded() const;
  /// True once nothing more can come of this playback.
  bool Failed() const;
  double Position();
  double Length();

 private:
  struct Shared;

  /// Without an `outcome` the state stays what it is.
  void Order(std::optional<MovieState> outcome, std::function<void()> job);
  void RefreshTimes();

  std::shared_ptr<Shared> shared_;
  std::thread thread_;
};

}  // namespace orvanta
