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

/// Plays one file on its own thread, so that neither a drive that has stopped nor a sound server that hangs
/// blocks the program. All calls come from the program's thread. Orders return at once and are carried out
/// one after the other; the functions that report a state report the one that the orders lead to.
class GstPlayback {
 public:
  /// The settings that a player keeps from file to file.
  struct Settings {
    int volume = 0;
    int playCount = 1;
  };

  /// Loads `file` and plays it.
  GstPlayback(MovieKind kind, const std::filesystem::path& file, const Settings& settings,
              FrameMailboxPtr frames);
  /// Waits until everything has ended, but for at most a second: a thread that hangs is abandoned.
  ~GstPlayback();
  GstPlayback(const GstPlayback&) = delete;
  GstPlayback& operator=(const GstPlayback&) = delete;

  /// Returns as soon as the first data has arrived, it is clear that none will, or the time is up.
  void AwaitFirstData(std::chrono::milliseconds timeout) const;

  void Run();
  void Pause();
  void Stop();
  void SetPosition(double seconds);
  void Apply(const Settings& settings);

  /// `NoFile` if the file has turned out not to be playable.
  MovieState State() const;
  /// Stays true if the file is lost later.
  bool Loaded() const;
  /// True once this playback has failed for good.
  bool Failed() const;
  double Position();
  double Length();

 private:
  struct Shared;

  /// Without an `outcome` the state stays the same.
  void Order(std::optional<MovieState> outcome, std::function<void()> job);
  void RefreshTimes();

  std::shared_ptr<Shared> shared_;
  std::thread thread_;
};

}  // namespace orvanta
