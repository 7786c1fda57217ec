#include "platform/desktop/media/GstPlayer.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/desktop/media/FrameMailbox.h"
#include "platform/desktop/media/GstPlayback.h"

namespace orvanta {
namespace {

constexpr std::chrono::milliseconds kOpenTimeout{250};

class GstPlayer : public MoviePlayer {
 public:
  explicit GstPlayer(MovieKind kind) : kind_(kind) {}
  ~GstPlayer() override { Close(); }

  void Open(const std::filesystem::path& file) override;
  void Run() override;
  void Pause() override;
  void Stop() override;
  MovieState State() override;
  bool Loaded() override { return Opened() && playback_->Loaded(); }
  double Position() override { return Opened() ? playback_->Position() : 0; }
  void SetPosition(double seconds) override;
  double Length() override { return Opened() ? playback_->Length() : 0; }
  int Volume() override { return settings_.volume; }
  void SetVolume(int hundredthsOfDecibel) override;
  void SetPlayCount(int count) override;
  Size FilmSize() override;
  PicturePtr Frame() override { return frames_ ? frames_->Newest() : nullptr; }

 private:
  void Close();
  bool Opened() const;
  void Announce();

  const MovieKind kind_;
  FrameNotifier notifier_{[this] { Announce(); }};
  GstPlayback::Settings settings_;
  std::chrono::steady_clock::time_point begun_;
  bool hadFile_ = false;  ///< whether there was a file before the current one
  FrameMailboxPtr frames_;
  std::unique_ptr<GstPlayback> playback_;
};

void GstPlayer::Open(const std::filesystem::path& file) {
  Close();
  frames_ = std::make_shared<FrameMailbox>(notifier_);
  playback_ = std::make_unique<GstPlayback>(kind_, file, settings_, frames_);
  begun_ = std::chrono::steady_clock::now();
}

/// False without a file. Callers expect a file to be open once they have named it. They wait for that only
/// when they ask, so that a window that is shown in between is not delayed.
bool GstPlayer::Opened() const {
  if (!playback_) return false;
  const auto left = begun_ + kOpenTimeout - std::chrono::steady_clock::now();
  playback_->AwaitFirstData(std::chrono::duration_cast<std::chrono::milliseconds>(left));
  return true;
}

void GstPlayer::Close() {
  hadFile_ = hadFile_ || (playback_ && playback_->Loaded());
  if (frames_) frames_->Close();
  playback_.reset();
}

void GstPlayer::Announce() {
  if (frames_ && frames_->TakeChanged() && OnFrame) OnFrame();
}

void GstPlayer::Run() {
  if (Opened() && !playback_->Failed()) playback_->Run();
}

void GstPlayer::Pause() {
  if (Opened() && !playback_->Failed()) playback_->Pause();
}

void GstPlayer::Stop() {
  if (Opened() && !playback_->Failed()) playback_->Stop();
}

MovieState GstPlayer::State() {
  if (!Opened()) return MovieState::NoFile;
  const MovieState state = playback_->State();
  return state == MovieState::NoFile && hadFile_ ? MovieState::Stopped : state;
}

void GstPlayer::SetPosition(double seconds) {
  if (Opened() && !playback_->Failed()) playback_->SetPosition(seconds);
}

void GstPlayer::SetVolume(int hundredthsOfDecibel) {
  settings_.volume = std::clamp(hundredthsOfDecibel, -10000, 0);
  if (playback_) playback_->Apply(settings_);
}

void GstPlayer::SetPlayCount(int count) {
  settings_.playCount = std::max(1, count);
  if (playback_) playback_->Apply(settings_);
}

Size GstPlayer::FilmSize() {
  const PicturePtr picture = Loaded() ? Frame() : nullptr;
  return picture ? picture->PixelSize() : Size{};
}

}  // namespace

std::unique_ptr<MoviePlayer> MakeGstPlayer(MovieKind kind) { return std::make_unique<GstPlayer>(kind); }

}  // namespace orvanta
