#include "platform/headless/HeadlessPlayer.h"

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
  name_ = file.filename().string();
  Note("open");
  std::error_code error;
  const bool isFile = std::filesystem::is_regular_file(file, error);
  const auto known = host_.media.find(name_);
  playable_ = isFile && known != host_.media.end();
  filmSize_ = {};
  frame_ = nullptr;
  Milliseconds delay = 0;
  if (playable_) {
    length_ = known->second.seconds;
    delay = known->second.loadDelay;
    filmSize_ = known->second.film;
  } else if (const auto wav = isFile ? WavLength(file) : std::nullopt) {
    playable_ = true;
    length_ = *wav;
  }
  if (!playable_) {
    if (state_ != MovieState::NoFile) state_ = MovieState::Stopped;
    return;
  }
  if (kind_ == MovieKind::Film && !filmSize_.Empty())
    frame_ = std::make_shared<PictureFile>(name_, filmSize_);
  from_ = 0;
  loadedAt_ = since_ = host_.Now() + delay;
  state_ = MovieState::Running;
}

void HeadlessPlayer::Run() {
  Note("run");
  Settle();
  if (!playable_ || state_ == MovieState::Running) return;
  if (from_ >= length_ * playCount_) from_ = 0;
  since_ = std::max(host_.Now(), loadedAt_);
  state_ = MovieState::Running;
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
  return length_ > 0 && from_ < length_ * playCount_ ? std::fmod(Played(), length_) : Played();
}

void HeadlessPlayer::SetPosition(double seconds) {
  Note("position " + std::to_string(seconds));
  if (!playable_) return;
  from_ = seconds;
  since_ = std::max(host_.Now(), loadedAt_);
}

void HeadlessPlayer::SetVolume(int hundredthsOfDecibel) {
  Note("volume " + std::to_string(hundredthsOfDecibel));
  volume_ = hundredthsOfDecibel;
}

double HeadlessPlayer::Played() const {
  if (state_ != MovieState::Running) return from_;
  return from_ + static_cast<double>(std::max<Milliseconds>(0, host_.Now() - since_)) / 1000.0;
}

void HeadlessPlayer::Settle() {
  if (state_ != MovieState::Running || Played() < length_ * playCount_) return;
  from_ = length_ * playCount_;
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
  // Bytes a second stand in the format chunk, the count of sample bytes in the data chunk behind it.
  if (number(28) == 0) return std::nullopt;
  return static_cast<double>(number(40)) / number(28);
}

}  // namespace orvanta
