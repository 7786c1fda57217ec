#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "desktop/MediaFiles.h"
#include "desktop/PulseServer.h"
#include "desktop/Recording.h"
#include "platform/MoviePlayer.h"
#include "platform/desktop/GstPlayer.h"

namespace orvanta {

/// A program that has nothing but a player, on a sound server of its own.
class PlayerStory : public testing::Test {
 protected:
  using Clock = std::chrono::steady_clock;

  PlayerStory() {
    if (!QCoreApplication::instance()) app_.emplace(argc_, argv_);
  }

  /// Takes in events, as the program does, until `done` holds; false after `seconds`.
  static bool Until(double seconds, const std::function<bool()>& done) {
    const auto end = Clock::now() + std::chrono::duration<double>(seconds);
    while (!done()) {
      if (Clock::now() >= end) return false;
      QCoreApplication::processEvents();
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
  }
  static void Wait(double seconds) {
    Until(seconds, [] { return false; });
  }
  /// Milliseconds that `call` takes.
  static double Cost(const std::function<void()>& call) {
    const auto begin = Clock::now();
    call();
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
  }
  static bool UntilStopped(MoviePlayer& player, double seconds) {
    return Until(seconds, [&player] { return player.State() == MovieState::Stopped; });
  }

  PulseServer server;
  MediaFiles files;
  std::unique_ptr<MoviePlayer> music = MakeGstPlayer(MovieKind::Sound);

 private:
  int argc_ = 1;
  char name_[8] = "player";
  char* argv_[2] = {name_, nullptr};
  std::optional<QCoreApplication> app_;
};

}  // namespace orvanta
