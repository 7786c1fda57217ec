// The player, as it is heard and seen.

#include <malloc.h>

#include <algorithm>

#include "desktop/media/PlayerStory.h"
#include "platform/desktop/window/FilmPicture.h"

namespace orvanta::test {

struct GstPlayer : PlayerStory {
  static constexpr const char* kOld = "-c:v msvideo1 -pix_fmt rgb555le -c:a pcm_u8";

  /// The number that the bars in the film's picture show.
  int Number() const {
    const auto picture = std::dynamic_pointer_cast<const FilmPicture>(film->Frame());
    if (!picture) return -1;
    int number = 0;
    for (int i = 0; i < 8; ++i) number |= qGreen(picture->image.pixel(20 * i + 10, 60)) > 128 ? 1 << i : 0;
    return number;
  }
};

// Faults: a call that takes too long; a second run that stays silent; an end that nobody notices.
TEST_F(GstPlayer, MusicIsHeldMovedAndPlayedAgain) {
  const auto file = files.Sound("a.wav", {600, 900, 1200, 1500});
  EXPECT_LE(Cost([&] { music->Open(file), music->State(); }), 260) << "the first question may wait";
  // The shell pauses its music at the first tick, a moment after the start.
  EXPECT_LE(Cost([&] { music->Pause(); }), 20);
  Wait(0.5);
  EXPECT_NEAR(music->Length(), 2.0, 0.01);
  const double before = ears.Now();
  EXPECT_LE(Cost([&] { music->Run(); }), 20);
  Wait(0.7);
  EXPECT_LE(ears.Heard(600).back().from, before + 0.2) << "silent after the pause";
  music->Pause();
  EXPECT_LE(Cost([&] { music->SetPosition(1.5); }), 20);
  music->Run();
  ASSERT_TRUE(UntilStopped(*music, 2));
  const auto fell = Clock::now();
  Wait(0.2);
  // The program notices the end almost as soon as the last tone is over.
  EXPECT_LE(std::chrono::duration<double>(fell - ears.Begun()).count(), ears.Heard(1500).back().to + 0.1);
  EXPECT_LT(ears.Seconds(1200), 0.011) << "what lies between must not be heard";
  EXPECT_LE(Cost([&] { music->Stop(); }), 20);
}

TEST_F(GstPlayer, MusicIsRepeatedWithoutAGap) {
  music->Open(files.Sound("a.mp3", {600, 600, 600}));
  music->SetPlayCount(2);
  ASSERT_TRUE(UntilStopped(*music, 6));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(600), 3.0, 0.1);
  const auto heard = ears.Heard(600);
  for (std::size_t i = 1; i < heard.size(); ++i) EXPECT_LE(heard[i].from - heard[i - 1].to, 0.05);
}

// Faults: pictures out of order or late, or more calls than a busy program can handle.
TEST_F(GstPlayer, AFilmShowsEveryPictureInOrder) {
  std::vector<int> seen;
  film->OnFrame = [&] { seen.push_back(Number()); };
  film->Open(files.Film("a.mpg", {600, 600, 900, 900}, "-c:v mpeg1video -b:v 2M -c:a mp2 -ar 44100"));
  EXPECT_LT(film->Position(), 0.2) << "on their own clock such streams begin at half a second";
  ASSERT_TRUE(UntilStopped(*film, 3));
  EXPECT_EQ(Number(), 49);
  EXPECT_TRUE(std::ranges::is_sorted(seen));
  seen.erase(std::unique(seen.begin(), seen.end()), seen.end());
  EXPECT_GE(seen.size(), 49U) << "at most one is dropped on a busy machine";

  film->Open(files.Film("a.avi", {600, 600}, kOld));
  ASSERT_TRUE(Until(2, [&] { return Number() >= 2; }));
  seen.clear();
  const int before = Number();
  std::this_thread::sleep_for(std::chrono::milliseconds(400));
  QCoreApplication::processEvents();
  ASSERT_EQ(seen.size(), 1U) << "one call for all pictures that came while the program was busy";
  EXPECT_GE(seen[0], before + 8) << "the film should have gone on meanwhile";
  film->Open(files.Film("a.mp4", {600}, "-vf setsar=2/1 -c:v mpeg4 -c:a aac"));
  ASSERT_TRUE(Until(2, [&] { return film->Loaded(); }));
  EXPECT_EQ(film->FilmSize(), (Size{320, 120})) << "the width depends on the shape of the pixels";
}

// If each opening leaked one picture or one pipeline, that would be several megabytes.
TEST_F(GstPlayer, OpensManyFilesWithoutGrowth) {
  struct Held {
    long kilobytes, threads, files;
  };
  const auto held = [] {
    malloc_trim(0);  // returns memory that is free but kept
    const std::string status = ContentOf("/proc/self/status");
    const auto number = [&](const char* name) { return std::stol(status.substr(status.find(name) + 9)); };
    return Held{number("\nVmRSS:"), number("\nThreads:"),
                std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {})};
  };
  const auto expectNoGrowth = [&](MoviePlayer& player, const MediaFiles::Path& file) {
    const auto heldAfter = [&](int times) {
      for (int i = 0; i < times; ++i, Wait(0.03)) player.Open(file);
      return held();
    };
    const Held before = heldAfter(20), after = heldAfter(40);
    EXPECT_LE(after.kilobytes - before.kilobytes, 1500);
    EXPECT_LE(after.threads, before.threads + 1);
    EXPECT_LE(after.files, before.files);
  };
  const Held first = held();
  expectNoGrowth(*music, files.Sound("a.wav", {600, 600}));
  music.reset();
  expectNoGrowth(*film, files.Film("a.avi", {600, 600}, kOld));
  film.reset();
  EXPECT_TRUE(Until(1, [&] { return held().threads <= first.threads + 2; }));
}

}  // namespace orvanta::test
