#include <cmath>

#include "desktop/PlayerStory.h"

namespace orvanta {
namespace {

constexpr auto kRunning = MovieState::Running;
constexpr auto kPaused = MovieState::Paused;
constexpr auto kStopped = MovieState::Stopped;

class GstPlayerMusic : public PlayerStory {
 protected:
  Recording ears;
};

TEST_F(GstPlayerMusic, PlaysByItselfToItsEnd) {
  EXPECT_EQ(music->State(), MovieState::NoFile);
  EXPECT_LE(Cost([this] { music->Open(files.Wave("a.wav", {600, 900})); }), 260);
  EXPECT_EQ(music->State(), kRunning);
  EXPECT_TRUE(Until(1, [this] { return music->Loaded(); }));
  EXPECT_NEAR(music->Length(), 1.0, 0.01);
  ASSERT_TRUE(UntilStopped(*music, 3));
  const auto fell = Clock::now();
  Wait(0.2);
  EXPECT_NEAR(ears.Seconds(600), 0.5, 0.03);
  EXPECT_NEAR(ears.Seconds(900), 0.5, 0.03);
  // The program learns of the end while the last of it is hardly over.
  const double late = std::chrono::duration<double>(fell - ears.When(ears.Heard(900).back().to)).count();
  EXPECT_LE(late, 0.1);
  EXPECT_TRUE(music->Loaded());
}

TEST_F(GstPlayerMusic, GoesOnWhereItWasPaused) {
  music->Open(files.Wave("a.wav", {600, 900, 1200, 1500}));
  Wait(1.2);
  EXPECT_LE(Cost([this] { music->Pause(); }), 20);
  EXPECT_EQ(music->State(), kPaused);
  const double place = music->Position();
  EXPECT_NEAR(place, 1.2, 0.15);
  Wait(0.7);
  EXPECT_NEAR(music->Position(), place, 0.03);
  const double before = ears.Now();
  EXPECT_LE(Cost([this] { music->Run(); }), 20);
  EXPECT_EQ(music->State(), kRunning);
  ASSERT_TRUE(UntilStopped(*music, 2));
  Wait(0.1);
  for (const int tone : {600, 900, 1200, 1500}) EXPECT_NEAR(ears.Seconds(tone), 0.5, 0.1) << tone;
  EXPECT_LE(ears.Heard(1200).back().from, before + 0.15) << "silent after the pause";
}

// The shell holds its loop at the first tick, a moment after the start.
TEST_F(GstPlayerMusic, GoesOnAtOnceAfterAPauseAtTheVeryStart) {
  music->Open(files.Wave("a.wav", {600, 900}));
  music->Pause();
  Wait(0.8);
  const double before = ears.Now();
  music->Run();
  ASSERT_TRUE(UntilStopped(*music, 3));
  Wait(0.1);
  EXPECT_LE(ears.Heard(600).back().from, before + 0.2);
  EXPECT_NEAR(ears.Seconds(600), 0.5, 0.1);
  EXPECT_NEAR(ears.Seconds(900), 0.5, 0.03);
}

TEST_F(GstPlayerMusic, BeginsAnewAfterAStop) {
  music->Open(files.Wave("a.wav", {600, 900, 1200}));
  Wait(0.7);
  EXPECT_LE(Cost([this] { music->Stop(); }), 20);
  EXPECT_EQ(music->State(), kStopped);
  EXPECT_EQ(music->Position(), 0);
  EXPECT_TRUE(music->Loaded());
  Wait(0.3);
  const double quiet = ears.Now();
  Wait(0.2);
  EXPECT_LT(ears.Peak(quiet), 0.01);
  music->Run();
  ASSERT_TRUE(Until(1, [this] { return music->Position() > 0.3; }));
  EXPECT_EQ(ears.Heard(600).size(), 2u);
  music->Stop();
  music->SetPosition(1.0);
  EXPECT_NEAR(music->Position(), 1.0, 0.01);
  music->Run();
  ASSERT_TRUE(UntilStopped(*music, 2));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(1200), 0.5, 0.05) << "a place chosen while stopped is where it begins";
}

TEST_F(GstPlayerMusic, BeginsAnewAfterItsEnd) {
  music->Open(files.Wave("a.wav", {600}));
  ASSERT_TRUE(UntilStopped(*music, 2));
  music->Run();
  EXPECT_EQ(music->State(), kRunning);
  ASSERT_TRUE(UntilStopped(*music, 2));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(600), 1.0, 0.06);
}

TEST_F(GstPlayerMusic, MovesToThePlaceThatIsAskedFor) {
  music->Open(files.Wave("a.wav", {600, 900, 1200}));
  Wait(0.2);
  EXPECT_LE(Cost([this] { music->SetPosition(1.0); }), 20);
  EXPECT_NEAR(music->Position(), 1.0, 0.1);
  Wait(0.3);
  // The seam itself may sound like anything for one window of the ears.
  EXPECT_LT(ears.Seconds(900), 0.011) << "what lies between is not heard";
  music->SetPosition(0);
  EXPECT_LT(music->Position(), 0.1);
  ASSERT_TRUE(UntilStopped(*music, 3));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(900), 0.5, 0.05);
}

TEST_F(GstPlayerMusic, HoldsThePlaceThatItWasSentToAMomentBefore) {
  music->Open(files.Wave("a.wav", {600, 600, 900}));
  Wait(0.7);
  music->SetPosition(0.2);
  music->Pause();
  Wait(0.2);
  EXPECT_NEAR(music->Position(), 0.2, 0.02);
  music->Run();
  ASSERT_TRUE(UntilStopped(*music, 3));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(600), 0.7 + 0.8, 0.1);
}

struct Loop {
  std::string name;
  std::string options;
};

class GstPlayerLoop : public GstPlayerMusic, public testing::WithParamInterface<Loop> {};

TEST_P(GstPlayerLoop, RepeatsWithoutAGap) {
  const MediaFiles::Tones tones(3, 600);
  music->Open(GetParam().options.empty() ? files.Wave("a.wav", tones)
                                         : files.Encoded(GetParam().name, GetParam().options, tones));
  music->SetPlayCount(2);
  ASSERT_TRUE(UntilStopped(*music, 6));
  Wait(0.1);
  EXPECT_NEAR(ears.Seconds(600), 3.0, 0.1);
  const auto heard = ears.Heard(600);
  for (std::size_t i = 1; i < heard.size(); ++i) EXPECT_LE(heard[i].from - heard[i - 1].to, 0.05);
}

INSTANTIATE_TEST_SUITE_P(Formats, GstPlayerLoop, testing::Values(Loop{"wav", ""}, Loop{"a.mp3", "-b:a 128k"}),
                         [](const auto& row) { return row.index == 0 ? "Wave" : "Mp3"; });

TEST_F(GstPlayerMusic, RepeatsAClipThatIsOverAtOnce) {
  music->SetPlayCount(10);
  music->Open(files.Wave("a.wav", {600}));
  Wait(1.2);
  EXPECT_EQ(music->State(), kRunning);
  music->SetPlayCount(1);
  ASSERT_TRUE(UntilStopped(*music, 2));
  Wait(0.1);
  EXPECT_LT(ears.Seconds(600), 3.2) << "fewer repetitions, asked for while it plays";
}

TEST_F(GstPlayerMusic, SoundsAsLoudAsItIsSet) {
  music->SetVolume(-2000);
  music->Open(files.Wave("a.wav", MediaFiles::Tones(6, 600)));
  Wait(0.5);
  EXPECT_NEAR(ears.Peak(ears.Now() - 0.2), 0.05, 0.01) << "a tenth of the amplitude";
  EXPECT_LE(Cost([this] { music->SetVolume(-9640); }), 20);
  EXPECT_EQ(music->Volume(), -9640);
  Wait(0.3);
  EXPECT_LT(ears.Peak(ears.Now() - 0.15), 0.001);
  music->SetVolume(0);
  Wait(0.3);
  EXPECT_NEAR(ears.Peak(ears.Now() - 0.15), 0.5, 0.02);
  music->SetVolume(-10001);
  EXPECT_EQ(music->Volume(), -10000);
  music->Open(files.Wave("b.wav", {600, 600}));
  Wait(0.4);
  EXPECT_EQ(ears.Peak(ears.Now() - 0.15), 0) << "the volume stays from file to file";
}

}  // namespace
}  // namespace orvanta
