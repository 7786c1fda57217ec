#pragma once

#include <chrono>
#include <cstdint>
#include <mutex>
#include <thread>
#include <vector>

#include "desktop/ChildProcess.h"

namespace orvanta {

/// What is heard on the test's sound server, from now on. Seconds count from the recording's beginning.
class Recording {
 public:
  using Clock = std::chrono::steady_clock;

  struct Span {
    double from = 0;
    double to = 0;
    double Length() const { return to - from; }
  };

  /// Waits until sound comes in.
  Recording();
  ~Recording();

  /// Where a tone of `hertz` is heard at a level of at least `level` of full scale; exact to 5 ms.
  std::vector<Span> Heard(double hertz, double level = 0.1) const;
  /// How long it is heard in all.
  double Seconds(double hertz, double level = 0.1) const;
  /// Loudest sample from `from` on, of full scale.
  double Peak(double from = 0) const;
  double Now() const;
  /// When that moment was heard, by the clock on the wall.
  Clock::time_point When(double seconds) const;

 private:
  void Read();

  ChildProcess recorder_;
  mutable std::mutex mutex_;
  std::vector<std::int16_t> samples_;
  Clock::time_point zero_ = Clock::time_point::max();
  std::thread reader_;
};

}  // namespace orvanta
