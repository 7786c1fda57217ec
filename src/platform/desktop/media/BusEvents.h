#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace orvanta {

/// What a `playbin` has reported on its bus, carried from its threads to the one that drives it.
class BusEvents {
 public:
  /// Any of them may hold together.
  struct Flags {
    bool dataReady = false;  ///< Data is ready at the place that was asked for.
    bool noDecoder = false;  ///< Nothing is installed that decodes what this player is for.
    bool ended = false;
    bool failed = false;
    bool abandoned = false;  ///< The player is being destroyed. Never taken back.
  };

  /// Sets what is true in `flags`.
  void Add(const Flags& flags);
  /// Gives all flags and clears them.
  Flags Take();
  /// Waits until data is ready, the file has ended or failed, or the player is abandoned. An end or a failure
  /// is still there for `Take`.
  Flags Await(std::chrono::milliseconds timeout);

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  Flags flags_;
};

}  // namespace orvanta
