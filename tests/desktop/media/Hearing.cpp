#include "desktop/media/Hearing.h"

#include <QByteArray>
#include <algorithm>
#include <numbers>
#include <span>
#include <stdexcept>

namespace orvanta::test {

namespace {

constexpr double kRate = 44100;
constexpr std::size_t kStep = 220;
constexpr double kFullScale = 32768;

// The amplitude of one frequency, as a part of full scale (Goertzel).
double Amplitude(std::span<const std::int16_t> part, double hertz) {
  const double turn = 2 * std::cos(2 * std::numbers::pi * hertz / kRate);
  double last = 0, before = 0;
  for (const std::int16_t sample : part)
    before = std::exchange(last, sample / kFullScale + turn * last - before);
  const double power = last * last + before * before - turn * last * before;
  return 2 * std::sqrt(std::max(0.0, power)) / static_cast<double>(part.size());
}

}  // namespace

// Without norewinds the clock of a null sink stalls for seconds after a pause.
PulseServer::PulseServer(const std::string& sink) : before_(qgetenv("PULSE_SERVER").toStdString()) {
  const std::string folder = folder_.Path();
  for (const char* name : {"PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"}) qputenv(name, folder.c_str());
  qputenv("PULSE_COOKIE", (folder + "/cookie").c_str());
  qputenv("PULSE_SERVER", ("unix:" + folder + "/native").c_str());
  words_ = {"pulseaudio",
            "-n",
            "--daemonize=no",
            "--use-pid-file=no",
            "--exit-idle-time=-1",
            "--realtime=no",
            "--high-priority=no",
            "--disable-shm=yes",
            "--log-target=file:/dev/null",
            "--load=" + sink,
            "--load=module-native-protocol-unix auth-anonymous=1 auth-cookie-enabled=0 socket=" + folder +
                "/native"};
  Restart();
}

void PulseServer::Restart() {
  process_.reset();
  process_.emplace(words_);
  if (!Soon([] { return std::system("pactl list short sinks 2>&1 | grep -q '^[0-9]'") == 0; }))
    throw std::runtime_error("PulseAudio does not start; is it installed?");
}

PulseServer::~PulseServer() { qputenv("PULSE_SERVER", before_.c_str()); }

double Recording::Now() const {
  const auto bytes = std::filesystem::file_size("/proc/self/fd/" + std::to_string(recorder_.Output()));
  const auto samples = bytes / sizeof(std::int16_t);
  return static_cast<double>(samples) / kRate;
}

std::vector<std::int16_t> Recording::Samples(double from) const {
  const long end = std::lround(Now() * kRate), first = std::lround(std::max(0.0, from) * kRate);
  std::vector<std::int16_t> samples(static_cast<std::size_t>(std::max(0L, end - first)));
  if (pread(recorder_.Output(), samples.data(), 2 * samples.size(), 2 * first) < 0) return {};
  return samples;
}

std::vector<Recording::Span> Recording::Heard(double hertz, double from, double level) const {
  const auto all = Samples(from);
  std::vector<Span> spans;
  bool on = false;
  for (std::size_t at = 0; at + 2 * kStep <= all.size(); at += kStep) {
    const bool heard = Amplitude(std::span(all).subspan(at, 2 * kStep), hertz) >= level;
    const double middle = from + static_cast<double>(at + kStep) / kRate;
    if (heard && !on) spans.push_back({middle, middle});
    if (on) spans.back().to = middle;
    on = heard;
  }
  return spans;
}

double Recording::Seconds(double hertz, double from, double level) const {
  double sum = 0;
  for (const Span& span : Heard(hertz, from, level)) sum += span.Length();
  return sum;
}

double Recording::Peak(double from) const {
  int peak = 0;
  for (const std::int16_t sample : Samples(from)) peak = std::max(peak, std::abs(int{sample}));
  return peak / kFullScale;
}

// Sound may be recorded late but never early.
Recording::Clock::time_point Recording::Begun() const {
  auto begun = Clock::time_point::max();
  for (int i = 0; i < 100; ++i, std::this_thread::sleep_for(std::chrono::milliseconds(2)))
    begun = std::min(
        begun, Clock::now() - std::chrono::round<Clock::duration>(std::chrono::duration<double>(Now())));
  return begun;
}

}  // namespace orvanta::test
