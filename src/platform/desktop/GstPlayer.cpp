#include "platform/desktop/GstPlayer.h"

#include <QObject>
#include <algorithm>
#include <utility>

#include "platform/desktop/FrameBox.h"
#include "platform/desktop/GstPlayback.h"

namespace orvanta {
namespace {

constexpr std::chrono::milliseconds kOpenPatience{250};

class GstPlayer : public MoviePlayer {
 public:
  explicit GstPlayer(PlayerKind kind) : kind_(kind) {}
  ~GstPlayer() override { close(); }

  void Open(const std::filesystem::path& file) override;
  void Run() override;
  void Pause() override;
  void Stop() override;
  MovieState State() override;
  bool Loaded() override { return playback_ && playback_->loaded(); }
  double Position() override { return playback_ ? playback_->position() : 0; }
  void SetPosition(double seconds) override;
  double Length() override { return playback_ ? playback_->length() : 0; }
  int Volume() override { return settings_.volume; }
  void SetVolume(int hundredthsOfDecibel) override;
  void SetPlayCount(int count) override;
  Size FilmSize() override;
  PicturePtr Frame() override { return frames_ ? frames_->newest() : nullptr; }

 private:
  void begin();
  void close();

  const PlayerKind kind_;
  QObject receiver_;
  GstPlayback::Settings settings_;
  std::filesystem::path file_;
  bool hadFile_ = false;  ///< A file has been loaded at some time before the present one.
  FrameBoxPtr frames_;
  std::unique_ptr<GstPlayback> playback_;
};

void GstPlayer::Open(const std::filesystem::path& file) {
  file_ = file;
  begin();
  playback_->awaitFirstData(kOpenPatience);
}

void GstPlayer::begin() {
  close();
  frames_ = std::make_shared<FrameBox>(receiver_, [this] {
    if (OnFrame) OnFrame();
  });
  playback_ = std::make_unique<GstPlayback>(kind_, file_, settings_, frames_);
}

void GstPlayer::close() {
  hadFile_ = hadFile_ || Loaded();
  if (frames_) frames_->close();
  playback_.reset();
}

void GstPlayer::Run() {
  if (!playback_) return;
  if (!playback_->failed()) return playback_->run();
  if (playback_->loaded()) begin();  // a file that was lost while it played may be back
}

void GstPlayer::Pause() {
  if (playback_ && !playback_->failed()) playback_->pause();
}

void GstPlayer::Stop() {
  if (playback_ && !playback_->failed()) playback_->stop();
}

MovieState GstPlayer::State() {
  if (!playback_) return MovieState::NoFile;
  const MovieState state = playback_->state();
  return state == MovieState::NoFile && hadFile_ ? MovieState::Stopped : state;
}

void GstPlayer::SetPosition(double seconds) {
  if (playback_ && !playback_->failed()) playback_->setPosition(seconds);
}

void GstPlayer::SetVolume(int hundredthsOfDecibel) {
  settings_.volume = std::clamp(hundredthsOfDecibel, -10000, 0);
  if (playback_) playback_->apply(settings_);
}

void GstPlayer::SetPlayCount(int count) {
  settings_.playCount = std::max(1, count);
  if (playback_) playback_->apply(settings_);
}

Size GstPlayer::FilmSize() {
  const PicturePtr picture = Loaded() ? Frame() : nullptr;
  return picture ? picture->PixelSize() : Size{};
}

}  // namespace

std::unique_ptr<MoviePlayer> MakeGstPlayer(PlayerKind kind) { return std::make_unique<GstPlayer>(kind); }

}  // namespace orvanta
