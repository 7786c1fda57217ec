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

/// A player of sound or film on a form. Only a film is visible, at its position in the form.
class ActiveMovie : public BoxControl {
 public:
  static constexpr int kNoFile = -1, kStopped = 0, kPaused = 1, kRunning = 2;  ///< values of CurrentState
  static constexpr int kComplete = 4;                                          ///< value of ReadyState

  ActiveMovie(Container& parent, std::string name, MovieKind kind);
  ~ActiveMovie() override;

  /// Loads a file of the host, which then starts to play by itself.
  void FileName(const std::filesystem::path& file);
  void Run() { player_->Run(); }
  void Pause() { player_->Pause(); }
  void Stop() { player_->Stop(); }

  std::int32_t CurrentState() const { return static_cast<std::int32_t>(player_->State()); }
  /// 4 once the file is completely loaded, otherwise 0. Once it is loaded, the control has the size of the
  /// film.
  std::int32_t ReadyState();
  /// In seconds.
  double CurrentPosition() const { return player_->Position(); }
  void CurrentPosition(double seconds) { player_->SetPosition(seconds); }
  double SelectionEnd() const { return player_->Length(); }
  /// In hundredths of a decibel; 0 is the loudest.
  std::int32_t Volume() const { return player_->Volume(); }
  void Volume(std::int32_t volume) { player_->SetVolume(volume); }
  /// If `AutoRewind` is on, the file is played `PlayCount` times, otherwise once.
  void AutoRewind(bool on);
  void PlayCount(std::int32_t count);
  /// Shows the film on the whole screen; a click there calls `ScreenClick`.
  void FullScreenMode(bool on);
  std::function<void()> ScreenClick;

  PicturePtr Frame() const { return player_->Frame(); }

  /// A film also hides what it covers from the mouse, and ignores the mouse itself.
  Control* Hit(Point p) override { return Frame() ? BoxControl::Hit(p) : nullptr; }
  void Paint(Canvas& canvas, Point origin, const Rect& area) const override;
  bool Covers(const Rect& area) const override;

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
