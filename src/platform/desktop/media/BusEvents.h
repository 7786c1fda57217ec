#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace orvanta {

/// What a `playbin` has reported on its bus, passed from its threads to the one that controls it.
class BusEvents {
 public:
  /// Any combination of them is possible.
  struct Flags {
    bool dataReady = false;  ///< data is ready at the requested position
    bool noDecoder = false;  ///< no decoder is installed for what this player plays
    bool ended = false;
    bool failed = false;
    bool abandoned = false;  ///< the player is being destroyed; never cleared
  };

  /// Sets the flags that are true in `flags`.
  void Add(const Flags& flags);
  /// Returns all flags and clears them.
  Flags Take();
  /// Waits until data is ready, the file has ended or failed, or the player is abandoned. An end or a failure
  /// stays set for `Take`.
  Flags Await(std::chrono::milliseconds timeout);

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  Flags flags_;
};

}  // namespace orvanta
