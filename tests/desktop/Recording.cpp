#include "desktop/Recording.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

#include "desktop/PulseServer.h"

namespace orvanta {
namespace {

constexpr int kRate = 44100;
constexpr std::size_t kStep = kRate / 200;
constexpr double kFullScale = 32768;

// The amplitude of one frequency (Goertzel), of full scale.
double Amplitude(std::span<const std::int16_t> part, double hertz) {
  const double turn = 2 * std::cos(2 * std::numbers::pi * hertz / kRate);
  double last = 0, before = 0;
  for (const std::int16_t sample : part) {
    const double now = sample / kFullScale + turn * last - before;
    before = last;
    last = now;
  }
  const double power = last * last + before * before - turn * last * before;
  return 2 * std::sqrt(std::max(0.0, power)) / static_cast<double>(part.size());
}

Recording::Clock::duration Wall(double seconds) {
  return std::chrono::duration_cast<Recording::Clock::duration>(std::chrono::duration<double>(seconds));
}

}  // namespace

Recording::Recording()
    : recorder_({"parec", "--device=" + std::string(PulseServer::kSink) + ".monitor", "--raw",
                 "--format=s16le", "--rate=44100", "--channels=1", "--latency-msec=10"}),
      reader_([this] { Read(); }) {
  while (Now() <= 0) std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

Recording::~Recording() {
  recorder_.Signal(SIGKILL);
  reader_.join();
}

void Recording::Read() {
  std::array<std::int16_t, kStep> block;
  for (ssize_t got = 0; (got = read(recorder_.output, block.data(), sizeof block)) > 0;) {
    const std::scoped_lock lock(mutex_);
    samples_.insert(samples_.end(), block.begin(), block.begin() + got / 2);
    // A block may come late but never early.
    zero_ = std::min(zero_, Clock::now() - Wall(static_cast<double>(samples_.size()) / kRate));
  }
}

std::vector<Recording::Span> Recording::Heard(double hertz, double level) const {
  const std::scoped_lock lock(mutex_);
  const std::span<const std::int16_t> all(samples_);
  std::vector<Span> spans;
  bool on = false;
  for (std::size_t at = 0; at + 2 * kStep <= all.size(); at += kStep) {
    const bool heard = Amplitude(all.subspan(at, 2 * kStep), hertz) >= level;
    const double middle = static_cast<double>(at + kStep) / kRate;
    if (heard && !on) spans.push_back({middle, middle});
    if (on) spans.back().to = middle;
    on = heard;
  }
  return spans;
}

double Recording::Seconds(double hertz, double level) const {
  double sum = 0;
  for (const Span& span : Heard(hertz, level)) sum += span.Length();
  return sum;
}

double Recording::Peak(double from) const {
  const std::scoped_lock lock(mutex_);
  int peak = 0;
  for (std::size_t i = static_cast<std::size_t>(from * kRate); i < samples_.size(); ++i)
    peak = std::max(peak, std::abs(static_cast<int>(samples_[i])));
  return peak / kFullScale;
}

double Recording::Now() const {
  const std::scoped_lock lock(mutex_);
  return static_cast<double>(samples_.size()) / kRate;
}

Recording::Clock::time_point Recording::When(double seconds) const {
  const std::scoped_lock lock(mutex_);
  return zero_ + Wall(seconds);
}

}  // namespace orvanta
