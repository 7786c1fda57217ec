#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

namespace orvanta {

/// Work for one thread, carried out in order. Any thread may call anything but `serve`.
class JobQueue {
 public:
  using Job = std::function<void()>;

  /// Refused in silence after `close`.
  void post(Job job);
  /// Forgets what has not begun and makes `last` the last job.
  void close(Job last);
  /// Carries out jobs until the last one is done.
  void serve();
  /// True once `serve` has done the last job; false if `patience` runs out before.
  bool waitServed(std::chrono::milliseconds patience);

 private:
  Job next();

  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Job> jobs_;
  bool closed_ = false;
  bool served_ = false;
};

}  // namespace orvanta
