// What is heard while a user goes through a disc: the voices, the background music, an entry's music.

#include <functional>

#include "desktop/media/HeardShell.h"
#include "platform/desktop/media/SoundCard.h"

namespace orvanta::test {
namespace {

constexpr int kGreeting = 9000, kFarewell = 10000, kShortLoop = 2000;

/// Tones of half a second each, every one 200 hertz above the one before.
MediaFiles::Tones Tune(int first, int tones) {
  MediaFiles::Tones tune;
  for (int i = 0; i < tones; ++i) tune.push_back(first + 200 * i);
  return tune;
}

class SoundStory : public HeardShell {
 protected:
  const MediaFiles::Tones loop_ = Tune(400, 40), song_ = Tune(3000, 8);

  SoundStory() { Sound("song.wav", song_); }

  /// The left edge of the marker of an entry's music; -1 if it is not visible.
  int Marker() const {
    const Look track = screen_.See(InMain(Rect{100, 459, 260, 1}));
    const auto red = std::ranges::find(track.pixels, 0xFF0000U);
    // After the edge.
    return red == track.pixels.end() ? -1 : 100 + static_cast<int>(red - track.pixels.begin()) - 1;
  }
  void ExpectSilenceUntil(const std::function<void()>& comesBack) const {
    EXPECT_TRUE(FallsSilent());
    EXPECT_TRUE(StaysSilent(0.3));
    comesBack();
    EXPECT_TRUE(BecomesLoud());
    Wait(0.7);
  }
  double Press(int button) const {
    ClickButton(button);
    PointAside();
    const double now = ears_->Now();
    EXPECT_TRUE(Shows(button, kPressed)) << button;
    return now;
  }
};

// Faults: a greeting that comes too late or is cut; music that plays on without a listener, starts again from
// the beginning, or does not come back.
TEST_F(SoundStory, TheLoopIsHeardOnlyWhereItBelongs) {
  Sound("start.wav", {kGreeting, kGreeting, kGreeting}, "Start");
  Sound("loop.wav", loop_, "Music");
  Sound("exit.wav", MediaFiles::Tones(8, kFarewell), "Exit1");
  Launch();
  EXPECT_TRUE(BecomesLoud()) << "no greeting";
  EXPECT_NE(screen_.Pixel({512, 300}), kArea) << "only when the main window is there";
  AwaitMain();
  const double mainThere = ears_->Now();
  EXPECT_TRUE(BecomesLoud()) << "no music in the menu";
  Wait(0.7);
  {
    const OtherWindow other({300, 60, 500, 400}, 0x808000);
    const double left = ears_->Now();
    ExpectSilenceUntil([&] {
      Wait(1);
      EXPECT_LT(ears_->Peak(left + 1.3), kSilence);
      screen_.Activate(Main());
    });
  }
  for (const Line line : {kSong, kFilm}) {
    OpenEntry(line);
    ExpectSilenceUntil([this] { GoBack(); });
  }
  ClickButton(kMute);
  ExpectSilenceUntil([this] { ClickButton(kUnmute); });

  Leave();
  HeardInTurn(loop_, 0);
  const auto greeting = ears_->Heard(kGreeting), farewell = ears_->Heard(kFarewell);
  ASSERT_TRUE(greeting.size() == 1 && farewell.size() == 1);
  EXPECT_NEAR(greeting[0].Length(), 1.5, 0.05);
  EXPECT_LT(greeting[0].to, mainThere);
  EXPECT_NEAR(farewell[0].Length(), 2, 0.25);
  for (const int tone : loop_)
    EXPECT_LT(ears_->Seconds(tone, farewell[0].from + 0.02), 0.02) << "heard together with the farewell";
}

// Faults: a gap in the background music; a switch that also silences an entry's music, or does not silence
// the background; a pause that loses the position; a marker that does not follow the music.
TEST_F(SoundStory, AnEntrysMusicIsTheUsersOwn) {
  Sound("loop.wav", {kShortLoop, kShortLoop}, "Music");
  Start();
  EXPECT_TRUE(BecomesLoud());
  Wait(3.5);
  ClickButton(kMute);
  EXPECT_TRUE(FallsSilent());
  Wait(1.2);  // while the music fades, no tick looks where the cursor is
  const auto loop = ears_->Heard(kShortLoop);
  for (std::size_t i = 1; i < loop.size(); ++i) EXPECT_LE(loop[i].from - loop[i - 1].to, 0.05);
  EXPECT_GE(loop.back().to - loop.front().from, 3.4);

  constexpr int kMarkerStart = 120, kMarkerEnd = 320;
  constexpr double kPixels = (kMarkerEnd - kMarkerStart) / 4.0;  // a second
  OpenEntry(kSong);
  EXPECT_EQ(Marker(), kMarkerStart);
  EXPECT_TRUE(StaysSilent(0.5));
  const double first = ears_->Now();
  ClickButton(kPlay);
  PointAside();
  EXPECT_TRUE(BecomesLoud());
  std::vector<std::pair<double, int>> seen;
  for (int i = 0; i < 20; ++i, Wait(0.05)) seen.emplace_back(ears_->Now(), Marker());
  EXPECT_TRUE(Shows(kPlay, kPressed));
  const double paused = Press(kPause);
  EXPECT_TRUE(FallsSilent());
  const int stands = Marker();
  Wait(0.5);
  EXPECT_EQ(Marker(), stands);
  EXPECT_LT(ears_->Peak(paused + 0.2), kSilence) << "it should be silent at once and stay so";
  EXPECT_NEAR(stands, kMarkerStart + kPixels * HeardInTurn(song_, first), 8);
  const double began = ears_->Heard(song_[0], first).at(0).from;
  for (const auto& [when, marker] : seen) EXPECT_NEAR(marker, kMarkerStart + kPixels * (when - began), 25);

  ClickButton(kPlay);
  EXPECT_TRUE(BecomesLoud());
  Wait(0.5);
  Press(kStop);
  EXPECT_TRUE(FallsSilent());
  HeardInTurn(song_, first);
  EXPECT_EQ(Marker(), kMarkerStart);
  const double second = Press(kPlay) - 0.2;
  EXPECT_TRUE(Shows(kStop, kPressed)) << "the end of the music is not seen";
  EXPECT_TRUE(Shows(kPlay, kNormal));
  EXPECT_EQ(Marker(), kMarkerStart);
  EXPECT_TRUE(StaysSilent(0.5)) << "it starts again by itself";
  EXPECT_NEAR(HeardInTurn(song_, second), 4, 0.1) << "after a stop it should play from beginning to end";
  ClickButton(kPlay);
  EXPECT_TRUE(BecomesLoud());
  GoBack();
  EXPECT_TRUE(FallsSilent());
  Leave();
  EXPECT_EQ(ears_->Seconds(kShortLoop, first), 0)
      << "the background music is heard although it is switched off";
}

// Faults on a machine without sound: waiting for voices; a sound switch that acts; music or a film that plays
// although nobody hears it.
TEST_F(SoundStory, WithoutASoundCardThereAreOnlyMessages) {
  for (const std::string voice : {"Start", "Music", "Exit1"})
    Sound(voice + ".wav", MediaFiles::Tones(40, 6000), voice);  // waiting for these would show
  ears_.reset();
  server_.Kill();
  if (IsSoundCardEnabled()) GTEST_SKIP() << "this machine has a sound card that ALSA can play on";
  Start();
  EXPECT_TRUE(Shows(kUnmute, kNormal)) << "the switch should show that sound is off";
  ClickButton(kUnmute);
  Wait(0.5);
  EXPECT_TRUE(Shows(kUnmute, kOver)) << "it should only show that the cursor is over it";
  for (const Line line : {kSong, kFilm}) {
    OpenEntry(line);
    ClickButton(line == kSong ? kPlay : kShow);
    ASSERT_TRUE(Soon([&] { return Windows().size() == 7 && screen_.Active() == Windows().back(); }))
        << "no message";
    EXPECT_EQ(screen_.TitleOf(screen_.Active()), screen_.TitleOf(Main())) << "the cinema opens all the same";
    Screen::Hand("key Return");
    EXPECT_TRUE(MainIsActive()) << "the message stays";
    GoBack();
  }
  const auto begin = Clock::now();
  Leave();
  EXPECT_LT(SecondsSince(begin), 1.8) << "it waits for a farewell that nobody hears";
}

}  // namespace
}  // namespace orvanta::test
