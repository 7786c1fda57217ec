// Films in the cinema window and on the whole screen: where they are shown, when they move, and what is
// heard.

#include <QColor>
#include <algorithm>

#include "desktop/media/HeardShell.h"

namespace orvanta::test {
namespace {

/// A film of plain colours, a second each, with tones that change at the same moments.
constexpr Rgb kColours[] = {0xC02020, 0x20A020, 0x2020C0, 0xC0C020};
constexpr int kTones[] = {3000, 4000, 5000, 6000};
constexpr Rgb kArt = 0x102018;

class FilmStory : public HeardShell {
 protected:
  enum CinemaButton { kRun, kClose, kHold, kWhole, kBack };
  static constexpr Rect kKino{212, 159, 600, 450};
  static constexpr Rect kPlace{kKino.left + 300 - 160, kKino.top + 200 - 120, 320, 240};

  FilmStory() {
    disc_.Picture("kino.gif", kKino.width, kKino.height, kArt);
    constexpr const char* kNames[] = {"cplay", "cstop", "cpause", "cscale", "cfscale"};
    for (int i = kRun; i <= kBack; ++i)
      for (int look = 0; look < 3; ++look)
        disc_.Picture(kNames[i] + std::to_string(look) + ".gif", 36, 24, CinemaColour(i, look));
    MediaFiles::Tones tones;
    QString colours;
    for (int i = 0; i < 4; ++i) {
      tones.insert(tones.end(), 2, kTones[i]);
      colours +=
          QString::asprintf("-f lavfi -i color=c=0x%06X:s=320x240:r=25:d=1,format=rgb24 ", kColours[i]);
    }
    disc_.File("film.mpg",
               ContentOf(files_.Made("film.mpg", colours.toStdString() + "-i '" +
                                                     files_.Sound("film.wav", tones).string() +
                                                     "' -filter_complex '[0][1][2][3]concat=n=4[v]' -map "
                                                     "'[v]' -map 4:a -c:v mpeg1video -b:v 2M -c:a mp2")));
  }
  static Rgb CinemaColour(int button, int look) {
    return static_cast<Rgb>((90 + 30 * button) << 16 | (40 + 80 * look) << 8 | 0x90);
  }

  static Rect BoxOf(int button) { return {50 + 50 * std::min<int>(button, kWhole), 400, 36, 24}; }
  static Point PlaceOf(int button) { return MiddleOf(BoxOf(button)) + Point{kKino.left, kKino.top}; }
  bool CinemaShows(int button, int look) const {
    return Soon([&] { return screen_.Pixel(PlaceOf(button)) == CinemaColour(button, look); });
  }
  void ClickAndMoveAside(Point place) const {
    screen_.Click(place);
    screen_.MoveMouse({kKino.left + 580, kKino.top + 20});
  }
  /// Waits before the click until the button has noticed the mouse.
  void ClickCinema(int button) const {
    screen_.MoveMouse(PlaceOf(button));
    EXPECT_TRUE(CinemaShows(button, kOver)) << button;
    ClickAndMoveAside(PlaceOf(button));
  }
  void OpenFilm() const {
    OpenEntry(kFilm);
    ClickAndMoveAside(InMain(MiddleOf(ButtonBox(kShow))));
    EXPECT_TRUE(Soon([&] { return screen_.TitleOf(screen_.Active()) == "Orvanta - Kino"; }));
    EXPECT_EQ(screen_.PlaceOf(screen_.Active()), kKino);
  }
  /// How the cinema differs from one with these two buttons pressed or not, ignoring the film.
  std::string CinemaDiffers(int run, int hold) const {
    Look art({kKino.width, kKino.height}, kArt);
    for (const auto& [button, look] :
         {std::pair{kRun, run}, {kClose, kNormal}, {kHold, hold}, {kWhole, kNormal}})
      art.Fill(BoxOf(button), CinemaColour(button, look));
    art.Fill(kPlace.Moved({-kKino.left, -kKino.top}), Look::kAnything);
    return Differs(kKino, art);
  }
  /// Whether a whole area has a colour of the film, as exactly as films keep colours.
  bool IsAll(int colour, const Rect& area) const {
    return std::ranges::all_of(screen_.See(area).pixels, [&](Rgb pixel) {
      const QColor seen(pixel), wanted(kColours[colour]);
      return std::abs(seen.red() - wanted.red()) <= 8 && std::abs(seen.green() - wanted.green()) <= 8 &&
             std::abs(seen.blue() - wanted.blue()) <= 8;
    });
  }
  bool Reaches(int colour, const Rect& area) const {
    return Soon([&] { return IsAll(colour, area); });
  }

  /// Watches the film from its first colour to its last; returns by how many seconds each colour comes after
  /// its tone.
  std::vector<double> Lags() const {
    std::vector<Clock::time_point> came;
    for (int colour = 0; colour < 4; ++colour) {
      EXPECT_TRUE(Reaches(colour, {kPlace.left + 160, kPlace.top + 120, 1, 1})) << colour;
      came.push_back(Clock::now());
    }
    const auto begun = ears_->Begun();  // meanwhile the sound is recorded
    std::vector<double> lags;
    for (std::size_t i = 1; i < came.size(); ++i)
      for (const auto& heard : ears_->Heard(kTones[i]))
        lags.push_back(std::chrono::duration<double>(came[i] - begun).count() - heard.from);
    return lags;
  }
};

// Faults: a film in the wrong place, over the art or in wrong colours; sound and picture apart; a pause that
// does not pause; an end that is not noticed; a second run that does not start; a change of the mode that
// restarts or loses the film.
TEST_F(FilmStory, AFilmIsTheUsersOwn) {
  Start();
  OpenFilm();
  std::vector<double> lags = Lags();
  ASSERT_EQ(lags.size(), 3U);
  std::ranges::sort(lags);
  EXPECT_LE(std::abs(lags[1]), 0.08) << "sound and picture are apart: " << testing::PrintToString(lags);
  EXPECT_EQ(CinemaDiffers(kPressed, kNormal), "");
  EXPECT_TRUE(IsAll(3, kPlace));
  EXPECT_TRUE(CinemaShows(kRun, kNormal)) << "the end is not noticed";
  ClickCinema(kHold);
  EXPECT_EQ(CinemaDiffers(kNormal, kNormal), "") << "the pause button should do nothing after the end";
  EXPECT_TRUE(IsAll(3, kPlace)) << "the last picture should stay";
  for (const int tone : kTones) EXPECT_NEAR(ears_->Seconds(tone), 1, 0.06) << tone;

  ClickCinema(kRun);
  EXPECT_TRUE(Reaches(0, kPlace)) << "it should start from the beginning";
  EXPECT_TRUE(Reaches(1, kPlace));
  Wait(0.3);
  ClickCinema(kHold);
  EXPECT_TRUE(FallsSilent());
  const double paused = ears_->Now();
  ClickCinema(kWhole);
  EXPECT_TRUE(Reaches(1, whole_));
  Wait(0.5);
  EXPECT_TRUE(IsAll(1, whole_)) << "changing the mode should not start the film";
  ClickAndMoveAside({30, 700});
  EXPECT_EQ(CinemaDiffers(kNormal, kPressed), "");
  EXPECT_TRUE(IsAll(1, kPlace));
  EXPECT_LT(ears_->Peak(paused), 0.01);

  ClickCinema(kRun);
  EXPECT_TRUE(Reaches(2, kPlace));
  EXPECT_TRUE(Reaches(3, kPlace));
  EXPECT_EQ(CinemaDiffers(kPressed, kNormal), "");
  EXPECT_TRUE(CinemaShows(kRun, kNormal));
  Wait(0.1);
  for (const int tone : kTones) EXPECT_NEAR(ears_->Seconds(tone), 2, 0.25) << tone;
  ClickCinema(kClose);
  EXPECT_TRUE(MainIsActive());
  EXPECT_TRUE(Shows(kShow, kNormal)) << "the entry should be shown as before";
  GoBack();
}

}  // namespace
}  // namespace orvanta::test
