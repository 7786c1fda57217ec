#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <functional>

#include "desktop/media/Hearing.h"
#include "desktop/media/MediaFiles.h"
#include "platform/MoviePlayer.h"
#include "platform/desktop/media/GstPlayer.h"

namespace orvanta::test {

/// What a player needs from a program.
class TestApplication {
  int argc_ = 1;
  char name_[7] = "player";
  char* argv_[2] = {name_, nullptr};
  const QCoreApplication app_{argc_, argv_};
};

/// A program that only has a player, with its own sound server.
class PlayerStory : public testing::Test {
 protected:
  using Clock = std::chrono::steady_clock;
  using Tones = MediaFiles::Tones;

  /// Handles events, as the program does, until `done` returns true; false after `seconds`.
  static bool Until(double seconds, const std::function<bool()>& done) {
    return Soon([&] { return QCoreApplication::processEvents(), done(); },
                std::chrono::milliseconds(std::lround(1000 * seconds)));
  }
  static void Wait(double seconds) {
    Until(seconds, [] { return false; });
  }
  static bool UntilStopped(MoviePlayer& player, double seconds) {
    return Until(seconds, [&player] { return player.State() == MovieState::Stopped; });
  }
  /// How many milliseconds `call` takes.
  static double Cost(const std::function<void()>& call) {
    const auto begin = Clock::now();
    call();
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
  }

  PulseServer server;
  Recording ears;
  MediaFiles files;
  std::unique_ptr<MoviePlayer> music = MakeGstPlayer(MovieKind::Sound);
  std::unique_ptr<MoviePlayer> film = MakeGstPlayer(MovieKind::Film);

 private:
  const TestApplication application_;
};

}  // namespace orvanta::test
