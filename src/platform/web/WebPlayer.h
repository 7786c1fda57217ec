#pragma once

#include "platform/web/WebHost.h"

namespace orvanta {

/// A player of the browser's: sound by its audio graph, films by a video element.
class WebPlayer final : public MoviePlayer {
 public:
  WebPlayer(WebHost& host, MovieKind kind);
  ~WebPlayer() override;

  /// Calls `OnFrame` if the film has a new picture.
  void TakeFrame();

  void Open(const std::filesystem::path& file) override;
  void Run() override;
  void Pause() override;
  void Stop() override;
  MovieState State() override;
  bool Loaded() override;
  double Position() override;
  void SetPosition(double seconds) override;
  double Length() override;
  int Volume() override { return volume_; }
  void SetVolume(int hundredthsOfDecibel) override;
  void SetPlayCount(int count) override;
  Size FilmSize() override;
  PicturePtr Frame() override { return frame_; }

 private:
  void AwaitAnswer();

  WebHost& host_;
  const int number_;
  int volume_ = 0;
  PicturePtr frame_;
};

}  // namespace orvanta
