#include "platform/desktop/media/NewsBox.h"

#include <utility>

namespace orvanta {

void NewsBox::Add(const News& news) {
  const std::scoped_lock lock(mutex_);
  news_.dataReady |= news.dataReady;
  news_.noDecoder |= news.noDecoder;
  news_.ended |= news.ended;
  news_.failed |= news.failed;
  news_.abandoned |= news.abandoned;
  changed_.notify_all();
}

NewsBox::News NewsBox::Take() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(news_, {.abandoned = news_.abandoned});
}

NewsBox::News NewsBox::Await(std::chrono::milliseconds patience) {
  std::unique_lock lock(mutex_);
  changed_.wait_for(lock, patience,
                    [this] { return news_.dataReady || news_.failed || news_.ended || news_.abandoned; });
  const News seen = news_;
  news_.dataReady = news_.noDecoder = false;
  return seen;
}

}  // namespace orvanta
