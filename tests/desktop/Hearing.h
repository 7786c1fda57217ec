#pragma once

#include <atomic>
#include <cmath>
#include <optional>

#include "desktop/Processes.h"

namespace orvanta::test {

/// A PulseAudio server of the test's own, which the whole process uses as long as this object lives.
class PulseServer {
 public:
  explicit PulseServer(const std::string& sink = "module-null-sink norewinds=1");
  ~PulseServer();

  void Freeze() { process_->Signal(SIGSTOP); }
  void Thaw() { process_->Signal(SIGCONT); }
  /// The address stays, with nobody behind it.
  void Kill() { process_.reset(); }

 private:
  TemporaryFolder folder_;
  const std::string before_;
  std::optional<Program> process_;
};

/// What is heard on the test's sound server, from now on. Seconds count from the recording's beginning.
class Recording {
 public:
  using Clock = std::chrono::steady_clock;

  struct Span {
    double from = 0, to = 0;
    double Length() const { return to - from; }
  };

  /// Waits until sound comes in.
  Recording();

  /// Where a tone of `hertz` is heard from then on, at that part of full scale at least; exact to 5 ms.
  std::vector<Span> Heard(double hertz, double from = 0, double level = 0.1) const;
  /// How long it is heard in all.
  double Seconds(double hertz, double from = 0, double level = 0.1) const;
  /// Loudest sample from `from` on, of full scale.
  double Peak(double from) const;
  /// Loudest sample of the quietest twentieth of a second from then on.
  double Quietest(double from) const;
  double Now() const;
  /// When that moment was heard, by the clock on the wall.
  Clock::time_point When(double seconds) const;

 private:
  std::vector<std::int16_t> Samples(double from) const;

  Program recorder_;
  std::atomic<Clock::time_point> zero_ = Clock::time_point::max();
  std::jthread watch_;
};

}  // namespace orvanta::test
