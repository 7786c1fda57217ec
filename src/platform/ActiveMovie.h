#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "platform/Controls.h"
#include "platform/MoviePlayer.h"

namespace orvanta {

class MovieScreen;

/// A player of sound or film on a form. Only a film is seen, at its place inside the form.
class ActiveMovie : public BoxControl {
 public:
  static constexpr int kNoFile = -1, kStopped = 0, kPaused = 1, kRunning = 2;  ///< of CurrentState
  static constexpr int kComplete = 4;                                          ///< of ReadyState

  ActiveMovie(Container& parent, std::string name, MovieKind kind);
  ~ActiveMovie() override;

  /// Loads a file of the host; it starts to play by itself.
  void FileName(const std::filesystem::path& file);
  void Run() { player_->Run(); }
  void Pause() { player_->Pause(); }
  void Stop() { player_->Stop(); }

  std::int32_t CurrentState() const { return static_cast<std::int32_t>(player_->State()); }
  /// 4 once the file is completely loaded, else 0. From then on the control has the film's size.
  std::int32_t ReadyState();
  /// In seconds.
  double CurrentPosition() const { return player_->Position(); }
  void CurrentPosition(double seconds) { player_->SetPosition(seconds); }
  double SelectionEnd() const { return player_->Length(); }
  /// In hundredths of a decibel, 0 the loudest.
  std::int32_t Volume() const { return player_->Volume(); }
  void Volume(std::int32_t volume) { player_->SetVolume(volume); }
  /// The file plays `PlayCount` times if `AutoRewind` is on, else once.
  void AutoRewind(bool on);
  void PlayCount(std::int32_t count);
  /// Shows the film on the whole screen; a click there calls `ScreenClick`.
  void FullScreenMode(bool on);
  std::function<void()> ScreenClick;

  PicturePtr Frame() const { return player_->Frame(); }

  /// A film lies above what it covers for the mouse as well, and takes no notice of it.
  Control* Hit(Point p) override { return Frame() ? BoxControl::Hit(p) : nullptr; }
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;

 private:
  void ApplyPlayCount();
  void FrameChanged();

  std::unique_ptr<MoviePlayer> player_;
  std::unique_ptr<MovieScreen> screen_;
  bool sized_ = false;
  bool autoRewind_ = false;
  std::int32_t playCount_ = 1;
};

}  // namespace orvanta
