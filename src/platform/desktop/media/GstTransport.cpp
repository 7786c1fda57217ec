#include "platform/desktop/media/GstTransport.h"

#include <algorithm>
#include <utility>

#include "platform/desktop/media/MediaSource.h"

namespace orvanta {
namespace {

// In seconds. MPEG program streams begin at about half a second on their own clock; a smaller value is the
// position of the first picture, not of the beginning.
constexpr double kLeastOrigin = 0.1;

// In seconds. Going back to the beginning so soon after the start would only be heard as a stutter.
constexpr double kStillAtBeginning = 0.1;

// After a pause so soon after the start, the sound server stays silent for as long as the pause lasted when
// the stream goes on.
constexpr std::chrono::seconds kEarly{1};

// In seconds. Shorter files are not repeated without a gap: the next repetition is read in advance, and an
// empty file would never signal its end.
constexpr double kLeastGapless = 0.05;

// A file that fails so soon after it was resumed was lost during the pause.
constexpr std::chrono::milliseconds kResume{500};

// A repetition that ends sooner has no content.
constexpr std::chrono::milliseconds kLeastRepetition{10};

}  // namespace

GstTransport::GstTransport(MovieKind kind, FrameMailboxPtr frames, BusEvents& events,
                           std::function<void()> onBusEvent)
    : kind_(kind), frames_(std::move(frames)), events_(events), onBusEvent_(std::move(onBusEvent)) {}

bool GstTransport::Load(const std::filesystem::path& file) {
  // Does nothing if it has been called before. The first call on a machine takes seconds, since it lists the
  // plugins.
  if (!gst_init_check(nullptr, nullptr, nullptr)) return false;
  file_ = file;
  Build();
  if (!playbin_->Preroll()) {
    playbin_.reset();
    return false;
  }
  const double first = playbin_->Position().value_or(0);
  origin_ = first < kLeastOrigin ? 0 : first;
  length_ = playbin_->Duration().value_or(0);
  mode_ = Mode::Paused;
  return true;
}

void GstTransport::Build() {
  output_ = FindSoundOutput();
  playbin_ =
      std::make_unique<GstPlaybin>(kind_, output_, frames_, events_,
                                   GstPlaybin::Listener{onBusEvent_, [this] { return PlaysOnceMore(); }});
  playbin_->SetSource(FindMediaSource(file_));
  playbin_->SetVolume(volume_);
}

void GstTransport::Play() {
  if (mode_ == Mode::Failed || mode_ == Mode::Playing) return;
  if (SoundIsBack()) Lose(Place());
  const bool fresh = mode_ == Mode::Stopped || atEnd_ || pausedEarly_ || startedAt_ == Clock::time_point{};
  resumedFrom_ = fresh ? std::nullopt : std::optional(Times().position);
  if (!PrerollStopped()) return;
  if (atEnd_) RewindEnded();
  if (pausedEarly_) RestartSound();
  if (mode_ != Mode::Paused) return;
  playbin_->Play();
  mode_ = Mode::Playing;
  repeatedAt_ = Clock::now();
  if (fresh) startedAt_ = repeatedAt_;
}

void GstTransport::Pause() {
  if (mode_ == Mode::Failed || Lost() || !PrerollStopped()) return;
  playbin_->Pause();
  if (mode_ == Mode::Playing) pausedEarly_ = Clock::now() - startedAt_ < kEarly;
  mode_ = Mode::Paused;
}

void GstTransport::Stop() {
  if (mode_ == Mode::Failed) return;
  if (playbin_) playbin_->Ready();
  mode_ = Mode::Stopped;
  begun_ = 1;
  startFrom_ = 0;
  atEnd_ = pausedEarly_ = false;
}

void GstTransport::Seek(double seconds) {
  if (mode_ == Mode::Failed || StartsOver(seconds)) return;
  if (mode_ == Mode::Stopped)
    startFrom_ = seconds;
  else if (playbin_->Seek(origin_ + seconds))
    atEnd_ = false;
}

MovieTimes GstTransport::Times() {
  if (mode_ == Mode::Failed) return {};
  if (mode_ == Mode::Stopped) return {startFrom_, length_};
  // For a file without a length in its header this is an estimate, which improves while the file plays.
  if (const auto length = playbin_->Duration(); length > 0.0) length_ = *length;
  return {std::max(0.0, playbin_->Position().value_or(origin_) - origin_), length_};
}

void GstTransport::SetVolume(int hundredthsOfDecibel) {
  volume_ = hundredthsOfDecibel;
  if (playbin_) playbin_->SetVolume(volume_);
}

bool GstTransport::HandleBusEvents() {
  const BusEvents::Flags flags = events_.Take();
  // What has failed may be gone already.
  if (flags.failed && playbin_) Recover();
  if (!flags.ended || flags.failed || mode_ == Mode::Failed || mode_ == Mode::Stopped) return false;
  // Clips of about a second end before the player is asked whether to repeat them.
  if (Repeats()) return false;
  playbin_->Pause();
  mode_ = Mode::Paused;
  atEnd_ = true;
  return true;
}

bool GstTransport::PrerollStopped() {
  if (mode_ != Mode::Stopped) return true;
  // A stopped playbin may still be connected to a sound server that has gone.
  bool ready = playbin_ && playbin_->Preroll();
  if (!ready) {
    Build();
    ready = playbin_->Preroll();
  }
  if (!ready) {
    Lose(startFrom_);
    return false;
  }
  mode_ = Mode::Paused;
  if (startFrom_ > 0) playbin_->Seek(origin_ + startFrom_);
  return true;
}

void GstTransport::RewindEnded() {
  begun_ = 1;
  atEnd_ = pausedEarly_ = false;
  if (playbin_->Seek(origin_)) return;
  playbin_->Ready();
  if (!playbin_->Preroll()) Lose(0);
}

void GstTransport::RestartSound() {
  startFrom_ = Times().position;
  pausedEarly_ = false;
  playbin_->Ready();
  mode_ = Mode::Stopped;
  PrerollStopped();
}

bool GstTransport::StartsOver(double seconds) {
  return seconds <= 0 && mode_ == Mode::Playing && begun_ == 1 && Times().position < kStillAtBeginning;
}

// Called on one of GStreamer's threads.
bool GstTransport::PlaysOnceMore() { return length_ >= kLeastGapless && BeginRepetition(); }

bool GstTransport::Repeats() {
  const auto last = std::exchange(repeatedAt_, Clock::now());
  return repeatedAt_ - last >= kLeastRepetition && BeginRepetition() && playbin_->Seek(origin_);
}

bool GstTransport::BeginRepetition() {
  int begun = begun_;
  while (begun < playCount_)
    if (begun_.compare_exchange_weak(begun, begun + 1)) return true;
  return false;
}

/// Whether a player that plays silently because there was no sound server could be heard now.
bool GstTransport::SoundIsBack() const {
  const bool hasPlayed = startedAt_ != Clock::time_point{};
  return playbin_ && hasPlayed && output_ == SoundOutput::None && FindSoundOutput() != SoundOutput::None;
}

/// The position at which the next start begins, in seconds.
double GstTransport::Place() { return atEnd_ ? 0 : Times().position; }

/// Closes the file; the next start opens it again and plays from `position`.
void GstTransport::Lose(double position) {
  playbin_.reset();
  mode_ = Mode::Stopped;
  begun_ = 1;
  startFrom_ = position;
  atEnd_ = pausedEarly_ = false;
}

/// Handles a broken file or a lost sound server. While a file is paused, GStreamer does not notice the
/// latter.
void GstTransport::Recover() {
  const auto resumedFrom = std::exchange(resumedFrom_, std::nullopt);
  if (mode_ != Mode::Playing) return Lose(mode_ == Mode::Paused ? Place() : startFrom_);
  const bool atOnce = resumedFrom && Clock::now() - repeatedAt_ < kResume;
  Lose(atOnce ? *resumedFrom : 0);
  if (atOnce) Play();
}

}  // namespace orvanta
