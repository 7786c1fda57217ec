#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace orvanta {

/// What has come up in a `playbin`, carried from its threads to the one that drives it.
class NewsBox {
 public:
  /// Each may hold at once with the others.
  struct News {
    bool dataReady = false;  ///< The data of the place that was asked for stand ready.
    bool noDecoder = false;  ///< Nothing is installed that decodes what this player is for.
    bool ended = false;
    bool failed = false;
    bool abandoned = false;  ///< Nobody is interested any more. Holds for ever.
  };

  /// Notes what is true in `news`.
  void Add(const News& news);
  /// Gives and forgets everything.
  News Take();
  /// Waits until data stand ready, or the file has ended or failed, or the player is abandoned. Leaves an end
  /// or a failure to be taken.
  News Await(std::chrono::milliseconds patience);

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  News news_;
};

}  // namespace orvanta
