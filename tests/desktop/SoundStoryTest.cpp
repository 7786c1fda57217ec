// What is heard while a user goes through a disc: the voices, the loop behind the menu, an entry's music.

#include <algorithm>
#include <cmath>

#include "desktop/HeardShell.h"

namespace orvanta::test {
namespace {

constexpr Tune kLoop{400, 12}, kMusic{3000, 8};
constexpr int kGreeting = 6000, kFarewell = 7000;

enum Line { kProgram, kSong, kFilm };

class SoundStory : public HeardShell {
 protected:
  SoundStory() {
    disc_.Entry("Gra", {{"Execute", "%:\\gra.exe"}});
    disc_.Entry("Piosenka", {{"PlayAs", "Music"}, {"Parameters", "%:\\Data\\Sound\\song.wav"}});
    disc_.Entry("Film", {{"PlayAs", "AVI"}, {"Parameters", "%:\\film.avi"}});
    Sound("song.wav", kMusic.Tones());
  }

  void Voice(const std::string& key, const std::string& file, const MediaFiles::Tones& tones) {
    Sound(file, tones);
    disc_.Set("VOICES", key, file);
  }

  void OpenProgram() const { OpenEntry(kProgram, 4, 0); }
  void OpenSong() const { OpenEntry(kSong, 6, 2); }
  void OpenFilm() const { OpenEntry(kFilm, 9, 0); }

  /// Where the marker of an entry's music stands, -1 if it is not to be seen.
  int Marker() const {
    constexpr Rect kTrack{100, 459, 260, 1};
    const Look seen = screen_.See(InMain(kTrack));
    for (int x = 0; x < seen.width; ++x)
      if (seen.At(x, 0) == 0xFF0000) return kTrack.left + x - 1;  // behind the edge
    return -1;
  }
  static constexpr int kMarkerStart = 120, kMarkerEnd = 320;
};

// Faults: a greeting that comes too late or is cut, a loop that plays on for nobody, starts anew or stays
// away.
TEST_F(SoundStory, TheLoopIsHeardOnlyWhereItBelongs) {
  Voice("Start", "start.wav", {kGreeting, kGreeting, kGreeting});
  Voice("Music", "loop.wav", kLoop.Tones());
  Voice("Exit1", "exit.wav", MediaFiles::Tones(8, kFarewell));
  Launch();
  EXPECT_TRUE(BecomesLoud()) << "no greeting";
  EXPECT_NE(screen_.Pixel({512, 300}), kArea) << "only when the main window is there";
  AwaitMain();
  const double mainThere = ears_->Now();

  EXPECT_TRUE(BecomesLoud()) << "no loop on the menu";
  Wait(1.2);
  const double left = ears_->Now();
  {
    OtherWindow other({300, 60, 500, 400}, 0x808000);
    EXPECT_TRUE(FallsSilent());
    EXPECT_TRUE(StaysSilent(1));
    screen_.Activate(Main());
    EXPECT_TRUE(BecomesLoud()) << "it does not come back with the focus";
  }
  Wait(1);
  const std::vector<Passage> first = Heard(kLoop);
  ASSERT_EQ(first.size(), 2U) << "an interruption for no reason";
  EXPECT_LE(first[0].begin, 0.2) << "not from its beginning";
  EXPECT_LE(first[0].to - left, 1.3);
  EXPECT_NEAR(first[1].begin, first[0].end, 0.15);

  for (const bool song : {true, false}) {
    song ? OpenSong() : OpenFilm();
    EXPECT_TRUE(FallsSilent());
    EXPECT_TRUE(StaysSilent(0.3));
    GoBack();
    EXPECT_TRUE(BecomesLoud());
    Wait(0.7);
  }
  ClickButton(8);  // minimises
  EXPECT_TRUE(FallsSilent());
  screen_.Activate(Main());
  EXPECT_TRUE(BecomesLoud());
  Wait(0.7);
  ClickButton(1);
  EXPECT_TRUE(FallsSilent());
  EXPECT_TRUE(Shows(2, 1));
  EXPECT_TRUE(StaysSilent(0.3));
  ClickButton(2);
  EXPECT_TRUE(BecomesLoud());
  Wait(0.7);

  const std::size_t soFar = Heard(kLoop).size();
  OpenProgram();
  ClickMain({440, 230});  // its picture, at its full size
  EXPECT_TRUE(Soon([&] { return screen_.Active() != Main() && screen_.Pixel({512, 384}) == kShot; }));
  Wait(0.3);
  screen_.Click({512, 384});
  EXPECT_TRUE(Soon([&] { return screen_.Active() == Main(); }));
  EXPECT_EQ(Heard(kLoop).size(), soFar) << "a program's view or a picture interrupts the loop";

  Leave();
  const std::vector<Passage> loop = Heard(kLoop);
  for (std::size_t i = 1; i < loop.size(); ++i) {
    const double skipped = std::remainder(loop[i].begin - loop[i - 1].end, kLoop.Length());
    EXPECT_LE(std::abs(skipped), 0.15) << "not from the same place, the passage " << i;
  }
  ASSERT_EQ(ears_->Heard(kGreeting).size(), 1U);
  EXPECT_NEAR(ears_->Seconds(kGreeting), 1.5, 0.05);
  EXPECT_LT(ears_->Heard(kGreeting)[0].to, mainThere);
  ASSERT_EQ(ears_->Heard(kFarewell).size(), 1U);
  EXPECT_NEAR(ears_->Seconds(kFarewell), 2, 0.25);
  EXPECT_LT(loop.back().to, ears_->Heard(kFarewell)[0].from + 0.02);
}

// Faults: a gap in the loop; a switch that also silences an entry's music, or does not hold; a pause that
// loses the place; a marker that goes its own way.
TEST_F(SoundStory, AnEntrysMusicIsTheUsersOwn) {
  constexpr int kShortLoop = 2000;
  Voice("Music", "loop.wav", {kShortLoop, kShortLoop});
  Start();
  EXPECT_TRUE(BecomesLoud());
  Wait(3.5);
  ClickButton(1);
  EXPECT_TRUE(FallsSilent());
  Wait(1.2);  // while the loop is paused softly, no tick tells the shell where the cursor is
  const auto loop = ears_->Heard(kShortLoop);
  for (std::size_t i = 1; i < loop.size(); ++i) EXPECT_LE(loop[i].from - loop[i - 1].to, 0.05);
  EXPECT_GE(loop.back().to - loop.front().from, 3.4);

  OpenSong();
  EXPECT_EQ(Marker(), kMarkerStart);
  EXPECT_TRUE(StaysSilent(0.5));
  ClickButton(4);
  MoveAside();
  EXPECT_TRUE(BecomesLoud());
  EXPECT_TRUE(Shows(4, 2));
  std::vector<std::pair<double, int>> seen;
  for (int i = 0; i < 20; ++i, Wait(0.05)) seen.emplace_back(ears_->Now(), Marker());
  ClickButton(5);
  MoveAside();
  const double paused = ears_->Now();
  EXPECT_TRUE(FallsSilent());
  EXPECT_TRUE(Shows(5, 2));
  const int stands = Marker();
  EXPECT_TRUE(StaysSilent(0.5));
  EXPECT_EQ(Marker(), stands);
  ASSERT_EQ(Heard(kMusic).size(), 1U);
  const Passage beginning = Heard(kMusic)[0];
  EXPECT_LE(beginning.begin, 0.1);
  EXPECT_LE(beginning.to - paused, 0.2) << "not silent at once";
  const double each = (kMarkerEnd - kMarkerStart) / kMusic.Length();
  std::vector<double> errors;
  for (const auto& [when, marker] : seen)
    errors.push_back(std::abs(marker - kMarkerStart - each * (when - beginning.from)));
  std::ranges::sort(errors);
  EXPECT_LE(errors[errors.size() / 2], 5) << "the marker does not follow";
  EXPECT_LE(errors.back(), 25);
  EXPECT_NEAR(stands, kMarkerStart + each * beginning.end, 8);

  ClickButton(4);
  EXPECT_TRUE(BecomesLoud());
  {
    OtherWindow other({300, 60, 500, 100}, 0x808000);
    const int before = Marker();
    Wait(0.4);
    EXPECT_GE(Marker(), before + 10) << "it stops when the focus goes";
    screen_.Activate(Main());
  }
  ClickButton(6);
  MoveAside();
  EXPECT_TRUE(FallsSilent());
  EXPECT_TRUE(Shows(6, 2));
  EXPECT_EQ(Marker(), kMarkerStart);
  ClickButton(4);
  MoveAside();
  EXPECT_TRUE(BecomesLoud());
  EXPECT_TRUE(Shows(6, 0));
  EXPECT_TRUE(Shows(6, 2)) << "the end of the music is not seen";
  EXPECT_TRUE(Shows(4, 0));
  EXPECT_EQ(Marker(), kMarkerStart);
  EXPECT_TRUE(StaysSilent(0.5)) << "it begins anew by itself";
  ClickButton(4);
  EXPECT_TRUE(BecomesLoud());
  Wait(0.7);
  GoBack();
  EXPECT_TRUE(FallsSilent());
  EXPECT_TRUE(StaysSilent(0.5));
  Leave();

  const std::vector<Passage> music = Heard(kMusic);
  ASSERT_EQ(music.size(), 4U);
  EXPECT_NEAR(music[1].begin, music[0].end, 0.15);
  EXPECT_LE(music[2].begin, 0.1) << "not from the beginning after a stop";
  EXPECT_NEAR(music[2].end, kMusic.Length(), 0.1);
  EXPECT_LE(music[3].begin, 0.1) << "not from the beginning after the end";
  EXPECT_LT(ears_->Heard(kShortLoop).back().to, beginning.from) << "the loop is heard though switched off";
}

}  // namespace
}  // namespace orvanta::test
