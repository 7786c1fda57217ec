#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "platform/desktop/media/GstPlaybin.h"

namespace orvanta {

/// The position in a file and its length, in seconds; a length of 0 is not known.
struct MovieTimes {
  double position = 0;
  double length = 0;
};

/// Plays one file: start, pause, stop, repetition and end. Calls may take as long as the drive and the sound
/// server do, so they belong on a thread of their own, always the same one, unless a comment says otherwise.
///
/// A file that turns out to be damaged, or whose sound server goes away, is lost: its position is its
/// beginning, or where it was paused, and the next start opens it again. If the loss is noticed while the
/// file is resumed, that is done at once.
class GstTransport {
 public:
  /// `onBusEvent` is called on any thread when `HandleBusEvents` has work.
  GstTransport(MovieKind kind, FrameMailboxPtr frames, BusEvents& events, std::function<void()> onBusEvent);

  /// Opens the file and waits for its first data; false if it cannot be played.
  bool Load(const std::filesystem::path& file);
  void Play();
  void Pause();
  void Stop();
  void Seek(double seconds);
  MovieTimes Times();
  void SetVolume(int hundredthsOfDecibel);
  /// How many times the file is played in all. May be called on any thread.
  void SetPlayCount(int count) { playCount_ = count; }

  /// Handles what the bus has reported: repeats the file or stops at its end. True if the last repetition has
  /// ended.
  bool HandleBusEvents();
  /// True unless `Load` has succeeded. A player that has failed does nothing more.
  bool Failed() const { return mode_ == Mode::Failed; }
  bool Lost() const { return mode_ == Mode::Stopped && !playbin_; }

 private:
  using Clock = std::chrono::steady_clock;
  enum class Mode { Failed, Stopped, Paused, Playing };

  void Build();
  bool PrerollStopped();
  void RewindEnded();
  void RestartSound();
  bool StartsOver(double seconds);
  bool PlaysOnceMore();
  bool Repeats();
  bool BeginRepetition();
  bool SoundIsBack() const;
  double Place();
  void Lose(double position);
  void Recover();

  const MovieKind kind_;
  const FrameMailboxPtr frames_;
  BusEvents& events_;
  const std::function<void()> onBusEvent_;
  std::filesystem::path file_;
  SoundOutput output_ = SoundOutput::None;
  std::unique_ptr<GstPlaybin> playbin_;  ///< null once the file is lost
  std::atomic<int> playCount_ = 1;
  std::atomic<int> begun_ = 1;  ///< repetitions that have begun, including the queued one
  int volume_ = 0;
  Mode mode_ = Mode::Failed;
  double origin_ = 0;  ///< the time on the file's own clock at its beginning
  std::atomic<double> length_ = 0;
  double startFrom_ = 0;  ///< while stopped: the position of the next start
  bool atEnd_ = false;
  bool pausedEarly_ = false;
  std::optional<double> resumedFrom_;  ///< its position, if the last start did not open the file
  Clock::time_point startedAt_;
  Clock::time_point repeatedAt_;
};

}  // namespace orvanta
