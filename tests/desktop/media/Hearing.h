#pragma once

#include <cmath>
#include <optional>

#include "desktop/support/Processes.h"

namespace orvanta::test {

/// A PulseAudio server for one test, which the whole process uses as long as this object exists.
class PulseServer {
 public:
  explicit PulseServer(const std::string& sink = "module-null-sink norewinds=1");
  ~PulseServer();

  void Freeze() { process_->Signal(SIGSTOP); }
  void Thaw() { process_->Signal(SIGCONT); }
  /// Restarts as a crashed service does: all connections are lost.
  void Restart();
  /// Ends the server; its address stays set.
  void Kill() { process_.reset(); }

 private:
  TemporaryFolder folder_;
  const std::string before_;
  std::vector<std::string> words_;
  std::optional<Program> process_;
};

/// Records the sound of the test's sound server from now on. Times are in seconds from the beginning of the
/// recording.
class Recording {
 public:
  using Clock = std::chrono::steady_clock;

  struct Span {
    double from = 0, to = 0;
    double Length() const { return to - from; }
  };

  /// Waits until sound arrives.
  Recording() {
    Soon([this] { return Now() > 0; });
  }

  /// When a tone of `hertz` is heard, starting at `from`, with at least that part of full scale; exact to 5
  /// ms.
  std::vector<Span> Heard(double hertz, double from = 0, double level = 0.1) const;
  /// How long it is heard in all, in seconds.
  double Seconds(double hertz, double from = 0, double level = 0.1) const;
  /// The loudest sample since then, as a part of full scale.
  double Peak(double from) const;
  double Now() const;
  /// When the recording began. Takes 0.2 seconds.
  Clock::time_point Begun() const;

 private:
  std::vector<std::int16_t> Samples(double from) const;

  Program recorder_{{"parec", "--device=@DEFAULT_MONITOR@", "--raw", "--format=s16le", "--rate=44100",
                     "--channels=1", "--latency-msec=10"}};
};

}  // namespace orvanta::test
