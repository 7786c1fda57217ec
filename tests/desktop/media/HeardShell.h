#pragma once

#include <algorithm>

#include "desktop/media/Hearing.h"
#include "desktop/media/MediaFiles.h"
#include "desktop/support/ShellOnScreen.h"

namespace orvanta::test {

/// The program with its own display and sound server, whose sound is recorded. Its disc has entries with
/// sound.
class HeardShell : public ShellOnScreen {
 protected:
  static constexpr double kSilence = 0.005, kLoud = 0.2;
  enum Line { kSong, kFilm };

  HeardShell() {
    disc_.Menu("MAINMENU", {"Piosenka", "Film"});
    disc_.Entry("Piosenka", {{"PlayAs", "Music"}, {"Parameters", "%:\\Data\\Sound\\song.wav"}});
    disc_.Entry("Film", {{"PlayAs", "AVI"}, {"Parameters", "%:\\film.mpg"}});
  }
  /// Writes a file below Data/Sound, which is also set as a voice if a key is given.
  void Sound(const std::string& name, const MediaFiles::Tones& tones, const std::string& voice = "") {
    disc_.File("Data/Sound/" + name, ContentOf(files_.Sound(name, tones)));
    if (!voice.empty()) disc_.Set("VOICES", voice, name);
  }
  /// Waits until something is heard, or until it has been silent for a quarter of a second.
  bool FallsSilent() const {
    return Soon([&] { return ears_->Peak(ears_->Now() - 0.25) < kSilence; });
  }
  bool BecomesLoud() const {
    const double now = ears_->Now();
    return Soon([&] { return ears_->Peak(std::max(now, ears_->Now() - 0.1)) > kLoud; });
  }
  bool StaysSilent(double seconds) const {
    const double from = ears_->Now();
    Wait(seconds);
    return ears_->Peak(from) < kSilence;
  }
  /// Expects that since then tones of half a second each were heard, starting with the first, with none
  /// repeated or left out, whatever the interruptions; returns how many seconds.
  double HeardInTurn(const MediaFiles::Tones& tones, double since) const {
    double sum = 0, before = 0.5;
    for (const int tone : tones) {
      const double seconds = ears_->Seconds(tone, since);
      // Less may be a click where another tone ends.
      EXPECT_NEAR(before, 0.5, seconds < 0.06 ? 1 : 0.15) << "not from the same place";
      sum += before = seconds;
    }
    return sum;
  }
  static void Wait(double seconds) { std::this_thread::sleep_for(std::chrono::duration<double>(seconds)); }
  /// Opens an entry of the first list.
  void OpenEntry(int line) const {
    Choose(line);
    PointAside();
    EXPECT_TRUE(line == kSong ? Shows(kStop, kPressed) : Shows(kShow, kNormal)) << "no view of " << line;
  }

  PulseServer server_;
  MediaFiles files_;
  std::optional<Recording> ears_{std::in_place};
};

}  // namespace orvanta::test
