#include <malloc.h>

#include <fstream>

#include "desktop/PlayerStory.h"

namespace orvanta {
namespace {

/// What the process holds of the machine.
struct Held {
  long kilobytes = 0;
  long threads = 0;
  long files = 0;

  static Held Now() {
    malloc_trim(0);  // what is free but kept is not held
    Held held;
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
      if (word == "VmRSS:") status >> held.kilobytes;
      if (word == "Threads:") status >> held.threads;
    }
    held.files = std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    return held;
  }
};

class GstPlayerGrowth : public PlayerStory {
 protected:
  static void OpenOften(MoviePlayer& player, const std::filesystem::path& file, int times) {
    for (int i = 0; i < times; ++i) {
      player.Open(file);
      Wait(0.03);
    }
  }
  // A leak of one picture or one pipeline at each opening would be several megabytes.
  static void ExpectNoGrowth(MoviePlayer& player, const std::filesystem::path& file) {
    ASSERT_FALSE(file.empty());
    OpenOften(player, file, 20);
    const Held before = Held::Now();
    OpenOften(player, file, 40);
    const Held after = Held::Now();
    EXPECT_LE(after.kilobytes - before.kilobytes, 1500);
    EXPECT_LE(after.threads, before.threads + 1);
    EXPECT_LE(after.files, before.files);
  }
};

TEST_F(GstPlayerGrowth, DoesNotComeOfMusic) { ExpectNoGrowth(*music, files.Wave("a.wav", {600, 600})); }

TEST_F(GstPlayerGrowth, DoesNotComeOfFilms) {
  const Held before = Held::Now();
  auto film = MakeGstPlayer(MovieKind::Film);
  ExpectNoGrowth(*film, files.Film("a.avi", "-c:v msvideo1 -pix_fmt rgb555le -c:a pcm_u8", {600, 600}));
  film.reset();
  EXPECT_TRUE(Until(1, [&] { return Held::Now().threads <= before.threads + 2; }));
}

}  // namespace
}  // namespace orvanta
