#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

namespace orvanta {

/// Jobs for one thread, which runs them in order. All functions except `Serve` may be called on any thread.
class JobQueue {
 public:
  using Job = std::function<void()>;

  /// Ignored after `Close`.
  void Post(Job job);
  /// Drops all jobs that have not started and makes `last` the last job.
  void Close(Job last);
  /// Runs jobs until the last one is done.
  void Serve();
  /// Waits until `Serve` has run the last job; false if `timeout` runs out before.
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
