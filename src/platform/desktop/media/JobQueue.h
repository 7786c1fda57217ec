#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

namespace orvanta {

/// Work for one thread, carried out in order. Any thread may call anything but `Serve`.
class JobQueue {
 public:
  using Job = std::function<void()>;

  /// Refused in silence after `Close`.
  void Post(Job job);
  /// Forgets what has not begun and makes `last` the last job.
  void Close(Job last);
  /// Carries out jobs until the last one is done.
  void Serve();
  /// True once `Serve` has done the last job; false if `timeout` runs out before.
  bool WaitServed(std::chrono::milliseconds timeout);

 private:
  Job Next();

  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Job> jobs_;
  bool closed_ = false;
  bool served_ = false;
};

}  // namespace orvanta
