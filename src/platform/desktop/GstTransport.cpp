#include "platform/desktop/GstTransport.h"

#include <algorithm>
#include <utility>

#include "platform/desktop/MediaUri.h"

namespace orvanta {
namespace {

// Seconds. MPEG program streams begin at about half a second by their own clock; less than this is the place
// of a first picture, not of the beginning.
constexpr double kLeastOrigin = 0.1;

// Seconds. A return to the beginning that comes sooner after the start would only be heard as a stutter.
constexpr double kStillAtBeginning = 0.1;

// A pause this soon after the start leaves the sound server silent for as long as the pause lasted when the
// stream goes on.
constexpr std::chrono::seconds kEarly{1};

}  // namespace

GstTransport::GstTransport(PlayerKind kind, FrameBoxPtr frames, NewsBox& news, std::function<void()> onNews)
    : kind_(kind), frames_(std::move(frames)), news_(news), onNews_(std::move(onNews)) {}

bool GstTransport::load(const std::filesystem::path& file) {
  // Harmless where it has been done. The first time on a machine it lists the plugins, which takes seconds.
  if (!gst_init_check(nullptr, nullptr, nullptr)) return false;
  playbin_ =
      std::make_unique<GstPlaybin>(kind_, FindSoundOutput(), frames_, news_,
                                   GstPlaybin::Listener{onNews_, [this] { return beginRepetition(); }});
  playbin_->setUri(MediaUri(file));
  playbin_->setVolume(volume_);
  if (!playbin_->preroll()) {
    die();
    return false;
  }
  const double first = playbin_->position().value_or(0);
  origin_ = first < kLeastOrigin ? 0 : first;
  mode_ = Mode::Paused;
  return true;
}

void GstTransport::play() {
  if (mode_ == Mode::Dead || mode_ == Mode::Playing) return;
  const bool fresh = mode_ == Mode::Stopped || atEnd_ || pausedEarly_ || startedAt_ == Clock::time_point{};
  if (!leaveStop()) return;
  if (atEnd_) rewindEnded();
  if (pausedEarly_) restartSound();
  if (mode_ == Mode::Dead) return;
  playbin_->play();
  mode_ = Mode::Playing;
  if (fresh) startedAt_ = Clock::now();
}

void GstTransport::pause() {
  if (mode_ == Mode::Dead || !leaveStop()) return;
  playbin_->pause();
  if (mode_ == Mode::Playing) pausedEarly_ = Clock::now() - startedAt_ < kEarly;
  mode_ = Mode::Paused;
}

void GstTransport::stop() {
  if (mode_ == Mode::Dead) return;
  playbin_->ready();
  mode_ = Mode::Stopped;
  begun_ = 1;
  startFrom_ = 0;
  atEnd_ = pausedEarly_ = false;
}

void GstTransport::seek(double seconds) {
  if (mode_ == Mode::Dead || startsOver(seconds)) return;
  if (mode_ == Mode::Stopped)
    startFrom_ = seconds;
  else if (playbin_->seek(origin_ + seconds))
    atEnd_ = false;
}

MovieTimes GstTransport::times() {
  if (mode_ == Mode::Dead) return {0, length_};
  if (length_ <= 0) length_ = std::max(0.0, playbin_->duration().value_or(0));
  if (mode_ == Mode::Stopped) return {startFrom_, length_};
  return {std::max(0.0, playbin_->position().value_or(origin_) - origin_), length_};
}

void GstTransport::setVolume(int hundredthsOfDecibel) {
  volume_ = hundredthsOfDecibel;
  if (playbin_) playbin_->setVolume(volume_);
}

bool GstTransport::heedNews() {
  const NewsBox::News news = news_.take();
  if (news.failed) die();
  if (!news.ended || mode_ == Mode::Dead || mode_ == Mode::Stopped) return false;
  // Clips of about a second are over before the player is asked whether they are to be repeated.
  if (beginRepetition() && playbin_->seek(origin_)) return false;
  playbin_->pause();
  mode_ = Mode::Paused;
  atEnd_ = true;
  return true;
}

bool GstTransport::leaveStop() {
  if (mode_ != Mode::Stopped) return true;
  if (!playbin_->preroll()) {
    die();
    return false;
  }
  mode_ = Mode::Paused;
  if (startFrom_ > 0) playbin_->seek(origin_ + startFrom_);
  return true;
}

void GstTransport::rewindEnded() {
  begun_ = 1;
  atEnd_ = pausedEarly_ = false;
  if (playbin_->seek(origin_)) return;
  playbin_->ready();
  if (!playbin_->preroll()) die();
}

void GstTransport::restartSound() {
  startFrom_ = times().position;
  pausedEarly_ = false;
  playbin_->ready();
  mode_ = Mode::Stopped;
  leaveStop();
}

bool GstTransport::startsOver(double seconds) {
  return seconds <= 0 && mode_ == Mode::Playing && begun_ == 1 && times().position < kStillAtBeginning;
}

bool GstTransport::beginRepetition() {
  int begun = begun_;
  while (begun < playCount_)
    if (begun_.compare_exchange_weak(begun, begun + 1)) return true;
  return false;
}

void GstTransport::die() {
  mode_ = Mode::Dead;
  playbin_.reset();
}

}  // namespace orvanta
