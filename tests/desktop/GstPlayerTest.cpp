// The player, heard and seen.

#include <malloc.h>

#include <algorithm>

#include "desktop/PlayerStory.h"
#include "platform/desktop/FilmPicture.h"

namespace orvanta::test {

struct GstPlayer : PlayerStory {
  /// The number that the film's picture carries in its bars.
  int Number() const {
    const auto picture = std::dynamic_pointer_cast<const FilmPicture>(film->Frame());
    if (!picture) return -1;
    int number = 0;
    for (int i = 0; i < 8; ++i) number |= qGreen(picture->image.pixel(20 * i + 10, 60)) > 128 ? 1 << i : 0;
    return number;
  }
};

// Faults: a call that takes its time, a position that is lost, an end that nobody learns of, a second run
// that stays silent, a place between two that is heard.
TEST_F(GstPlayer, MusicIsHeldMovedStoppedAndPlayedAgain) {
  const auto file = files.Sound("a.wav", {600, 900, 1200, 1500});
  EXPECT_EQ(music->State(), MovieState::NoFile);
  EXPECT_LE(Cost([&] { music->Open(file); }), 260);
  EXPECT_EQ(music->State(), MovieState::Running);
  // The shell holds its loop at the first tick, a moment after the start.
  EXPECT_LE(Cost([&] { music->Pause(); }), 20);
  Wait(0.5);
  EXPECT_TRUE(music->Loaded());
  EXPECT_NEAR(music->Length(), 2.0, 0.01);
  const double before = ears.Now();
  EXPECT_LE(Cost([&] { music->Run(); }), 20);
  Wait(0.7);
  EXPECT_LE(ears.Heard(600).back().from, before + 0.2) << "silent after the pause";
  music->Pause();
  const double place = music->Position();
  EXPECT_NEAR(place, 0.7, 0.15);
  EXPECT_LE(Cost([&] { music->SetPosition(1.5); }), 20);
  EXPECT_NEAR(music->Position(), 1.5, 0.02);
  music->Run();
  ASSERT_TRUE(UntilStopped(*music, 2));
  const auto fell = Clock::now();
  Wait(0.2);
  // The program learns of the end while the last of it is hardly over.
  EXPECT_LE(std::chrono::duration<double>(fell - ears.When(ears.Heard(1500).back().to)).count(), 0.1);
  EXPECT_NEAR(ears.Seconds(600) + ears.Seconds(900), place, 0.1);
  EXPECT_LT(ears.Seconds(1200), 0.011) << "what lies between is heard";
  EXPECT_TRUE(music->Loaded());

  EXPECT_LE(Cost([&] { music->Stop(); }), 20);
  EXPECT_EQ(music->Position(), 0);
  music->SetPosition(1.0);
  music->Run();
  ASSERT_TRUE(UntilStopped(*music, 2));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(1200), 0.5, 0.05) << "not from where it was sent while stopped";
  EXPECT_NEAR(ears.Seconds(1500), 1.0, 0.05);
}

// Faults: a gap between two rounds; a clip that is over before anybody knows that it is to be repeated.
TEST_F(GstPlayer, MusicIsRepeatedWithoutAGap) {
  for (const std::string name : {"a.wav", "a.mp3"}) {
    const double from = ears.Now();
    music->Open(files.Sound(name, {600, 600, 600}));
    music->SetPlayCount(2);
    ASSERT_TRUE(UntilStopped(*music, 6));
    Wait(0.1);
    EXPECT_NEAR(ears.Seconds(600, from), 3.0, 0.1) << name;
    const auto heard = ears.Heard(600, from);
    for (std::size_t i = 1; i < heard.size(); ++i) EXPECT_LE(heard[i].from - heard[i - 1].to, 0.05) << name;
  }
  music->SetPlayCount(10);
  music->Open(files.Sound("short.wav", {900}));
  Wait(1.2);
  EXPECT_EQ(music->State(), MovieState::Running);
  music->SetPlayCount(1);
  ASSERT_TRUE(UntilStopped(*music, 2));
  EXPECT_LT(ears.Seconds(900), 3.2) << "fewer repetitions, asked for while it plays";
}

TEST_F(GstPlayer, SoundsAsLoudAsItIsSetFromFileToFile) {
  const auto file = files.Sound("a.wav", Tones(6, 600));
  music->SetVolume(-2000);
  music->Open(file);
  Wait(0.5);
  EXPECT_NEAR(ears.Peak(ears.Now() - 0.2), 0.05, 0.01) << "a tenth of the amplitude";
  for (const auto& [volume, peak, error] :
       {std::tuple{-9640, 0.0, 0.001}, {0, 0.5, 0.02}, {-10001, 0.0, 0.0}}) {
    EXPECT_LE(Cost([&] { music->SetVolume(volume); }), 20);
    EXPECT_EQ(music->Volume(), std::max(volume, -10000));
    Wait(0.3);
    EXPECT_NEAR(ears.Peak(ears.Now() - 0.15), peak, error);
  }
  music->Open(file);
  Wait(0.4);
  EXPECT_EQ(ears.Peak(ears.Now() - 0.15), 0);
}

// Faults: pictures out of their turn, late, or more calls than a busy program can take; a picture of the file
// before.
TEST_F(GstPlayer, AFilmShowsEveryPictureInItsTurn) {
  std::vector<int> seen;
  film->OnFrame = [&] { seen.push_back(Number()); };
  const std::string old = "-c:v msvideo1 -pix_fmt rgb555le -c:a pcm_u8";
  film->Open(files.Film("a.mpg", {600, 600, 900, 900}, "-c:v mpeg1video -b:v 2M -c:a mp2 -ar 44100"));
  EXPECT_LT(film->Position(), 0.2) << "such streams begin at half a second by their own clock";
  ASSERT_TRUE(UntilStopped(*film, 3));
  EXPECT_EQ(Number(), 49);
  EXPECT_TRUE(std::ranges::is_sorted(seen));
  seen.erase(std::unique(seen.begin(), seen.end()), seen.end());
  EXPECT_GE(seen.size(), 49U) << "at most one is dropped on a busy machine";

  film->Open(files.Film("a.avi", {600, 600, 600, 600}, old + " -af atrim=0:0.3"));
  ASSERT_TRUE(Until(2, [&] { return Number() >= 2; }));
  seen.clear();
  const int before = Number();
  std::this_thread::sleep_for(std::chrono::milliseconds(400));
  QCoreApplication::processEvents();
  ASSERT_EQ(seen.size(), 1U) << "one call for all that came while the program was busy";
  EXPECT_GE(seen[0], before + 8) << "playing went on meanwhile";
  ASSERT_TRUE(UntilStopped(*film, 3));
  EXPECT_EQ(Number(), 49) << "it goes on after its sound is over";

  film->Open(files.folder.Path() / "nothing.avi");
  EXPECT_TRUE(film->Frame() == nullptr && film->FilmSize().Empty());
  film->Open(files.Film("a.mp4", {600}, "-vf setsar=2/1 -c:v mpeg4 -c:a aac"));
  ASSERT_TRUE(Until(2, [&] { return film->Loaded(); }));
  EXPECT_EQ(film->FilmSize(), (Size{320, 120})) << "as wide as its pixels are shaped";
  const auto last = files.Film("b.avi", {600, 600}, old);
  server.Kill();
  film->Open(last);
  const auto begun = Clock::now();
  ASSERT_TRUE(UntilStopped(*film, 3));
  EXPECT_NEAR(std::chrono::duration<double>(Clock::now() - begun).count(), 1.0, 0.2)
      << "its speed where nothing is heard";
}

// A leak of one picture or one pipeline at each opening would be several megabytes.
TEST_F(GstPlayer, DoesNotGrowWithTheFilesThatItOpens) {
  struct Held {
    long kilobytes = 0, threads = 0,
         files = std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  };
  const auto held = [] {
    malloc_trim(0);  // what is free but kept is not held
    Held now;
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
      if (word == "VmRSS:" || word == "Threads:") status >> (word == "VmRSS:" ? now.kilobytes : now.threads);
    return now;
  };
  const Held first = held();
  const auto expectNoGrowth = [&](MoviePlayer& player, const MediaFiles::Path& file) {
    const auto openOften = [&](int times) {
      for (int i = 0; i < times; ++i, Wait(0.03)) player.Open(file);
    };
    openOften(20);
    const Held before = held();
    openOften(40);
    const Held after = held();
    EXPECT_LE(after.kilobytes - before.kilobytes, 1500);
    EXPECT_LE(after.threads, before.threads + 1);
    EXPECT_LE(after.files, before.files);
  };
  expectNoGrowth(*music, files.Sound("a.wav", {600, 600}));
  music.reset();
  expectNoGrowth(*film, files.Film("a.avi", {600, 600}, "-c:v msvideo1 -pix_fmt rgb555le -c:a pcm_u8"));
  film.reset();
  EXPECT_TRUE(Until(1, [&] { return held().threads <= first.threads + 2; }));
}

}  // namespace orvanta::test
