#include "platform/desktop/media/BusEvents.h"

#include <utility>

namespace orvanta {

void BusEvents::Add(const Flags& flags) {
  const std::scoped_lock lock(mutex_);
  flags_.dataReady |= flags.dataReady;
  flags_.noDecoder |= flags.noDecoder;
  flags_.ended |= flags.ended;
  flags_.failed |= flags.failed;
  flags_.abandoned |= flags.abandoned;
  changed_.notify_all();
}

BusEvents::Flags BusEvents::Take() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(flags_, {.abandoned = flags_.abandoned});
}

BusEvents::Flags BusEvents::Await(std::chrono::milliseconds timeout) {
  std::unique_lock lock(mutex_);
  changed_.wait_for(lock, timeout,
                    [this] { return flags_.dataReady || flags_.failed || flags_.ended || flags_.abandoned; });
  const Flags seen = flags_;
  flags_.dataReady = flags_.noDecoder = false;
  return seen;
}

}  // namespace orvanta
