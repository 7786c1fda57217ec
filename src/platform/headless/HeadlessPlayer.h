#pragma once

#include <algorithm>
#include <optional>

#include "platform/EventLoop.h"
#include "platform/MoviePlayer.h"

namespace orvanta {

class HeadlessHost;

/// A player on the virtual clock. It takes the length of a file from the header of a WAV file or from the
/// host's `media`; any other file cannot be played.
class HeadlessPlayer : public MoviePlayer {
 public:
  HeadlessPlayer(HeadlessHost& host, MovieKind kind) : host_(host), kind_(kind) {}

  void Open(const std::filesystem::path& file) override;
  void Run() override;
  void Pause() override;
  void Stop() override;
  MovieState State() override;
  bool Loaded() override;
  double Position() override;
  void SetPosition(double seconds) override;
  double Length() override { return playable_ ? length_ : 0; }
  int Volume() override { return volume_; }
  void SetVolume(int hundredthsOfDecibel) override;
  void SetPlayCount(int count) override { playCount_ = std::max(1, count); }
  Size FilmSize() override { return filmSize_; }
  PicturePtr Frame() override { return frame_; }

 private:
  void Note(const std::string& call) const;
  /// Opens `file_` and plays it from the beginning. False if it cannot be played.
  bool Begin();
  /// Opens a lost file again and plays on from its position.
  void RunAnew();
  /// The seconds played since the start of the first repetition.
  double Played() const;
  void Settle();

  HeadlessHost& host_;
  const MovieKind kind_;
  std::filesystem::path file_;
  std::string name_;
  MovieState state_ = MovieState::NoFile;
  double length_ = 0;
  double from_ = 0;         // seconds played until the last change of state
  Milliseconds since_ = 0;  // when it last began to run
  Milliseconds loadedAt_ = 0;
  double breaksAt_ = 0;
  int soundServer_ = 0;  // the one that it plays on
  bool playable_ = false;
  bool lost_ = false;  // must be opened again
  int volume_ = 0;
  int playCount_ = 1;
  Size filmSize_;
  PicturePtr frame_;
};

/// The length in seconds according to the header of a WAV file; nothing if it is not one.
std::optional<double> WavLength(const std::filesystem::path& file);

}  // namespace orvanta
