#include "platform/desktop/media/JobQueue.h"

#include <utility>

namespace orvanta {

void JobQueue::Post(Job job) {
  const std::scoped_lock lock(mutex_);
  if (closed_) return;
  jobs_.push_back(std::move(job));
  changed_.notify_all();
}

void JobQueue::Close(Job last) {
  const std::scoped_lock lock(mutex_);
  if (closed_) return;
  closed_ = true;
  jobs_.clear();
  jobs_.push_back(std::move(last));
  changed_.notify_all();
}

JobQueue::Job JobQueue::Next() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return !jobs_.empty() || closed_; });
  if (jobs_.empty()) return {};
  Job job = std::move(jobs_.front());
  jobs_.pop_front();
  return job;
}

void JobQueue::Serve() {
  while (Job job = Next()) job();
  const std::scoped_lock lock(mutex_);
  served_ = true;
  changed_.notify_all();
}

bool JobQueue::WaitServed(std::chrono::milliseconds timeout) {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, timeout, [this] { return served_; });
}

}  // namespace orvanta
