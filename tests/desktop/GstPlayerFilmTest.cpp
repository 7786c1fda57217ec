#include <algorithm>
#include <utility>

#include "desktop/PlayerStory.h"
#include "platform/desktop/FilmPicture.h"

namespace orvanta {
namespace {

const std::string kMpeg1 = "-c:v mpeg1video -b:v 2M -c:a mp2 -ar 44100";

const std::string kAvi = "-c:v msvideo1 -pix_fmt rgb555le -c:a pcm_u8";

/// The number that the picture carries in its bars.
int FrameNumber(const PicturePtr& picture) {
  const auto* film = dynamic_cast<const FilmPicture*>(picture.get());
  if (!film) return -1;
  const int bar = film->image.width() / kFrameBars, middle = film->image.height() / 2;
  int number = 0;
  for (int i = 0; i < kFrameBars; ++i)
    if (qGreen(film->image.pixel(i * bar + bar / 2, middle)) > 128) number |= 1 << i;
  return number;
}

class GstPlayerFilm : public PlayerStory {
 protected:
  struct Seen {
    int number;
    Clock::time_point when;
  };

  GstPlayerFilm() {
    film->OnFrame = [this] { seen.push_back({FrameNumber(film->Frame()), Clock::now()}); };
  }

  std::vector<Seen> seen;
  std::unique_ptr<MoviePlayer> film = MakeGstPlayer(MovieKind::Film);
};

TEST_F(GstPlayerFilm, ShowsEveryPictureInItsTurnWithItsSound) {
  Recording ears;
  film->Open(files.Film("a.mpg", kMpeg1, {600, 900, 1200}));
  EXPECT_LT(film->Position(), 0.2) << "such streams begin at half a second by their own clock";
  EXPECT_EQ(film->FilmSize(), (Size{160, 120}));
  ASSERT_NE(film->Frame(), nullptr);
  EXPECT_EQ(film->Frame()->PixelSize(), (Size{160, 120}));
  ASSERT_TRUE(UntilStopped(*film, 4));
  Wait(0.1);

  ASSERT_FALSE(seen.empty());
  EXPECT_EQ(seen.back().number, 36);
  EXPECT_TRUE(std::ranges::is_sorted(seen, {}, &Seen::number));
  std::vector<int> numbers;
  for (const Seen& frame : seen) numbers.push_back(frame.number);
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  EXPECT_GE(numbers.size(), 36u) << "at most one is dropped on a busy machine";

  // The third tone begins with the picture number 25.
  const auto change = std::ranges::find(seen, 25, &Seen::number);
  ASSERT_NE(change, seen.end());
  ASSERT_FALSE(ears.Heard(1200).empty());
  const std::chrono::duration<double> apart = change->when - ears.When(ears.Heard(1200)[0].from);
  EXPECT_LE(std::abs(apart.count()), 0.08);
}

TEST_F(GstPlayerFilm, StandsStillWhilePausedAndAfterItsEnd) {
  film->Open(files.Film("a.avi", kAvi, {600, 900}));
  Wait(0.4);
  film->Pause();
  Wait(0.1);
  const std::size_t before = seen.size();
  const PicturePtr standing = film->Frame();
  Wait(0.3);
  EXPECT_EQ(seen.size(), before);
  EXPECT_EQ(film->Frame(), standing);
  film->Run();
  ASSERT_TRUE(UntilStopped(*film, 2));
  EXPECT_EQ(FrameNumber(film->Frame()), 24);
  film->Pause();
  EXPECT_EQ(film->State(), MovieState::Paused);
  film->Run();
  ASSERT_TRUE(Until(1, [this] { return FrameNumber(film->Frame()) == 3; })) << "from the beginning";
  film->Stop();
  EXPECT_TRUE(film->Loaded());
  EXPECT_EQ(film->FilmSize(), (Size{160, 120}));
}

TEST_F(GstPlayerFilm, IsCalledOnceForAllThatCameWhileTheProgramWasBusy) {
  film->Open(files.Film("a.avi", kAvi, {600, 600}));
  Wait(0.1);
  seen.clear();
  std::this_thread::sleep_for(std::chrono::milliseconds(400));
  QCoreApplication::processEvents();
  ASSERT_EQ(seen.size(), 1u);
  EXPECT_GT(seen[0].number, 8) << "playing went on meanwhile";
}

TEST_F(GstPlayerFilm, IsAsWideAsItsPixelsAreShaped) {
  film->Open(files.Film("a.mp4", "-vf setsar=2/1 -c:v mpeg4 -c:a aac", {600}));
  ASSERT_TRUE(Until(2, [this] { return film->Loaded(); }));
  EXPECT_EQ(film->FilmSize(), (Size{320, 120}));
}

TEST_F(GstPlayerFilm, PlaysWhereNothingCanBeHeard) {
  const auto file = files.Film("a.mpg", kMpeg1, {600, 600});
  film->SetVolume(-10000);
  film->Open(file);
  ASSERT_TRUE(UntilStopped(*film, 3));
  EXPECT_GE(seen.size(), 24u);
  seen.clear();
  server.Kill();
  film->Open(file);
  const auto begun = Clock::now();
  ASSERT_TRUE(UntilStopped(*film, 3));
  EXPECT_NEAR(std::chrono::duration<double>(Clock::now() - begun).count(), 1.0, 0.2) << "at its proper speed";
  EXPECT_GE(seen.size(), 24u);
}

TEST_F(GstPlayerFilm, GoesOnAfterItsSoundIsOver) {
  const auto whole = files.Film("a.avi", kAvi + " -af atrim=0:0.3", {600, 600});
  film->Open(whole);
  ASSERT_TRUE(UntilStopped(*film, 3));
  EXPECT_EQ(FrameNumber(film->Frame()), 24);
}

TEST_F(GstPlayerFilm, LeavesNoPictureBehindForTheNextFile) {
  film->Open(files.Film("a.avi", kAvi, {600}));
  Wait(0.2);
  film->Open(files.folder.path / "nothing.avi");
  EXPECT_EQ(film->Frame(), nullptr);
  EXPECT_TRUE(film->FilmSize().Empty());
  seen.clear();
  Wait(0.1);
  EXPECT_TRUE(seen.empty());
}

}  // namespace
}  // namespace orvanta
