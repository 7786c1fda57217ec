#include "platform/headless/HeadlessPlayer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>

#include "platform/headless/HeadlessHost.h"

namespace orvanta {

void HeadlessPlayer::Note(const std::string& call) const {
  host_.playerCalls.push_back({host_.Now(), this, name_, call});
}

void HeadlessPlayer::Open(const std::filesystem::path& file) {
  file_ = file;
  name_ = file.filename().string();
  Note("open");
  from_ = 0;
  playable_ = Begin();
  if (!playable_ && state_ != MovieState::NoFile) state_ = MovieState::Stopped;
}

bool HeadlessPlayer::Begin() {
  filmSize_ = {};
  frame_ = nullptr;
  std::error_code error;
  if (!std::filesystem::is_regular_file(file_, error)) return false;
  const auto known = host_.media.find(name_);
  const std::optional<double> wav = WavLength(file_);
  if (known == host_.media.end() && !wav) return false;
  const HeadlessHost::Media media =
      known != host_.media.end() ? known->second : HeadlessHost::Media{.seconds = *wav};
  length_ = media.seconds;
  breaksAt_ = media.breaksAt;
  filmSize_ = media.film;
  const bool seen = kind_ == MovieKind::Film && !filmSize_.Empty();
  frame_ = seen ? std::make_shared<PictureFile>(name_, filmSize_) : nullptr;
  soundServer_ = host_.SoundServer();
  lost_ = false;
  from_ = 0;
  loadedAt_ = since_ = host_.Now() + media.loadDelay;
  state_ = MovieState::Running;
  return true;
}

void HeadlessPlayer::Run() {
  Note("run");
  Settle();
  if (!playable_ || state_ == MovieState::Running) return;
  if (lost_) return RunAnew();
  if (from_ >= length_ * playCount_) from_ = 0;
  since_ = std::max(host_.Now(), loadedAt_);
  state_ = MovieState::Running;
}

void HeadlessPlayer::RunAnew() {
  const double place = from_;
  if (Begin()) {
    from_ = place;
  } else {
    state_ = MovieState::Stopped;
  }
}

void HeadlessPlayer::Pause() {
  Note("pause");
  Settle();
  if (!playable_) return;
  from_ = Played();
  state_ = MovieState::Paused;
}

void HeadlessPlayer::Stop() {
  Note("stop");
  Settle();
  if (state_ == MovieState::NoFile) return;
  from_ = 0;
  state_ = MovieState::Stopped;
}

MovieState HeadlessPlayer::State() {
  Settle();
  return state_;
}

bool HeadlessPlayer::Loaded() { return playable_ && host_.Now() >= loadedAt_; }

double HeadlessPlayer::Position() {
  Settle();
  return length_ > 0 && from_ < length_ * playCount_ ? std::fmod(Played(), length_)
                                                     : std::min(Played(), length_);
}

void HeadlessPlayer::SetPosition(double seconds) {
  Note("position " + std::to_string(seconds));
  Settle();
  if (!playable_) return;
  from_ = std::max(0.0, seconds);
  since_ = std::max(host_.Now(), loadedAt_);
}

void HeadlessPlayer::SetVolume(int hundredthsOfDecibel) {
  Note("volume " + std::to_string(hundredthsOfDecibel));
  volume_ = std::clamp(hundredthsOfDecibel, -10000, 0);
}

double HeadlessPlayer::Played() const {
  if (state_ != MovieState::Running) return from_;
  return from_ + static_cast<double>(std::max<Milliseconds>(0, host_.Now() - since_)) / 1000.0;
}

void HeadlessPlayer::Settle() {
  const bool running = state_ == MovieState::Running;
  if (playable_ && (soundServer_ != host_.SoundServer() || (running && Played() >= breaksAt_))) lost_ = true;
  if (!running) return;
  const double end = length_ * playCount_;
  if (!lost_ && Played() < end) return;
  from_ = lost_ ? 0 : end;
  state_ = MovieState::Stopped;
}

std::optional<double> WavLength(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::array<char, 44> head{};
  stream.read(head.data(), static_cast<std::streamsize>(head.size()));
  if (stream.gcount() < 44 || std::memcmp(head.data(), "RIFF", 4) != 0 ||
      std::memcmp(&head[8], "WAVE", 4) != 0) {
    return std::nullopt;
  }
  const auto number = [&](std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(head[at + i]);
    return value;
  };
  // The format chunk has the bytes per second, the data chunk after it the number of sample bytes.
  if (number(28) == 0) return std::nullopt;
  return static_cast<double>(number(40)) / number(28);
}

}  // namespace orvanta
