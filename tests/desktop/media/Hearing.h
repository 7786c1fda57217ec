#pragma once

#include <cmath>
#include <optional>

#include "desktop/support/Processes.h"

namespace orvanta::test {

/// A PulseAudio server of the test's own, which the whole process uses as long as this object lives.
class PulseServer {
 public:
  explicit PulseServer(const std::string& sink = "module-null-sink norewinds=1");
  ~PulseServer();

  void Freeze() { process_->Signal(SIGSTOP); }
  void Thaw() { process_->Signal(SIGCONT); }
  /// As a service does that has crashed: all connections are lost.
  void Restart();
  /// The address stays, with nobody behind it.
  void Kill() { process_.reset(); }

 private:
  TemporaryFolder folder_;
  const std::string before_;
  std::vector<std::string> words_;
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
  Recording() {
    Soon([this] { return Now() > 0; });
  }

  /// Where a tone of `hertz` is heard from then on, at that part of full scale at least; exact to 5 ms.
  std::vector<Span> Heard(double hertz, double from = 0, double level = 0.1) const;
  /// How long it is heard in all.
  double Seconds(double hertz, double from = 0, double level = 0.1) const;
  /// Loudest sample from then on, of full scale.
  double Peak(double from) const;
  double Now() const;
  /// When the recording began, by the clock on the wall. Takes 0.2 seconds.
  Clock::time_point Begun() const;

 private:
  std::vector<std::int16_t> Samples(double from) const;

  Program recorder_{{"parec", "--device=@DEFAULT_MONITOR@", "--raw", "--format=s16le", "--rate=44100",
                     "--channels=1", "--latency-msec=10"}};
};

}  // namespace orvanta::test
