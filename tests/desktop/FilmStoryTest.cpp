// Films in the cinema window and on the whole screen: where they stand, when they move, what is heard
// meanwhile.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>

#include "desktop/HeardShell.h"

namespace orvanta::test {
namespace {

/// A film of plain colours, a second each, and tones that change with them.
constexpr std::array<Rgb, 4> kColours{0xC02020, 0x20A020, 0x2020C0, 0xC0C020};
constexpr std::array<int, 4> kTones{3000, 4000, 5000, 6000};
constexpr Rgb kArt = 0x102018, kOldFilm = 0xE08040;

class FilmStory : public HeardShell {
 protected:
  using Clock = std::chrono::steady_clock;
  enum Button { kPlay, kStop, kPause, kWhole, kBack };
  enum Entry { kFilm, kOld, kBroken };

  FilmStory() {
    disc_.Menu("MAINMENU", {"Film", "Stary", "Zepsuty"});
    disc_.Entry("Film", {{"PlayAs", "AVI"}, {"Parameters", "%:\\film.mpg"}});
    disc_.Entry("Stary", {{"PlayAs", "AVI"}, {"Parameters", "%:\\old.mov"}});
    disc_.Entry("Zepsuty", {{"PlayAs", "AVI"}, {"Parameters", "%:\\broken.avi"}});
    disc_.File("broken.avi", std::string(5000, 'x'));
    disc_.Picture("kino.gif", kKino.width, kKino.height, kArt);
    constexpr std::array kNames{"cplay", "cstop", "cpause", "cscale", "cfscale"};
    for (int i = 0; i <= kBack; ++i)
      for (int look = 0; look < 3; ++look)
        disc_.Picture(kNames.at(static_cast<std::size_t>(i)) + std::to_string(look) + ".gif", 36, 24,
                      KinoColour(i, look));
    MakeFilms();
  }

  void MakeFilms() const {
    MediaFiles::Tones tones;
    std::string colours;
    for (std::size_t i = 0; i < kColours.size(); ++i) {
      tones.insert(tones.end(), 2, kTones.at(i));
      colours += Plain(kColours.at(i), "320x240", 1);
    }
    Convert(colours + "-i '" + files_.Wave("film.wav", tones).string() +
                "' -filter_complex '[0][1][2][3]concat=n=4[v]' -map '[v]' -map 4:a -c:v mpeg1video -b:v 2M "
                "-c:a mp2",
            "film.mpg");
    Convert(Plain(kOldFilm, "15x13", 20) + "-c:v qtrle", "old.mov");
  }

  static std::string Plain(Rgb colour, const std::string& size, int seconds) {
    std::array<char, 8> hex{};
    std::snprintf(hex.data(), hex.size(), "%06X", colour);
    return "-f lavfi -i color=c=0x" + std::string(hex.data()) + ":s=" + size +
           ":r=25:d=" + std::to_string(seconds) + ",format=rgb24 ";
  }

  void Convert(const std::string& command, const std::string& name) const {
    const std::string made = (disc_.Folder() / name).string();
    EXPECT_EQ(std::system(("ffmpeg -v error -nostdin -y " + command + " '" + made + "'").c_str()), 0);
  }

  static Rgb KinoColour(int button, int look) {
    return static_cast<Rgb>((90 + 30 * button) << 16 | (40 + 80 * look) << 8 | 0x90);
  }
  static constexpr Rect kKino{212, 159, 600, 450};
  static constexpr Rect kPlace{kKino.left + 300 - 160, kKino.top + 200 - 120, 320, 240};
  static constexpr Point kMiddle{kPlace.left + 160, kPlace.top + 120};
  // Half of an odd size is rounded to the even neighbour.
  static constexpr Rect kOldPlace{kKino.left + 300 - 8, kKino.top + 200 - 6, 15, 13};
  static constexpr Point kAsideOfFilm{kKino.left + 580, kKino.top + 20};

  static Rect BoxOf(int button) { return {50 + 50 * std::min<int>(button, kWhole), 400, 36, 24}; }
  void ClickScreen(Point place) const {
    screen_.Click(place);
    Wait(0.02);
    screen_.MoveMouse(kAsideOfFilm);
  }
  /// Waits before the click for the button to take notice of the mouse.
  void ClickKino(int button) const {
    const Point place = MiddleOf(BoxOf(button)) + Point{kKino.left, kKino.top};
    screen_.MoveMouse(place);
    EXPECT_TRUE(KinoShows(button, 1)) << button;
    ClickScreen(place);
  }
  bool KinoShows(int button, int look) const {
    const Point place = MiddleOf(BoxOf(button)) + Point{kKino.left, kKino.top};
    return Soon([&] { return screen_.Pixel(place) == KinoColour(button, look); });
  }

  void OpenFilm(int line) const {
    OpenEntry(line, 9, 0);
    ClickScreen(InMain(MiddleOf(ButtonBox(9))));
    EXPECT_TRUE(Soon([&] { return screen_.TitleOf(screen_.Active()) == "Orvanta - Kino"; }));
    EXPECT_EQ(screen_.PlaceOf(screen_.Active()), kKino);
  }
  void CloseFilm() const {
    ClickKino(kStop);
    EXPECT_TRUE(Soon([&] { return screen_.Active() == Main() && Windows().size() == 6; }));
    EXPECT_TRUE(Shows(9, 0)) << "the entry's view is not there as it was";
    GoBack();
  }

  /// The cinema with the buttons in these looks, `back` in place of the button that leads to the whole
  /// screen.
  static Look Cinema(int play, int pause, const Rect& film, bool back = false) {
    Look art(kKino.width, kKino.height, kArt);
    art.Fill(BoxOf(kPlay), KinoColour(kPlay, play));
    art.Fill(BoxOf(kStop), KinoColour(kStop, 0));
    art.Fill(BoxOf(kPause), KinoColour(kPause, pause));
    art.Fill(BoxOf(kWhole), KinoColour(back ? kBack : kWhole, 0));
    art.Fill(film.Moved({-kKino.left, -kKino.top}), Look::kAnything);
    return art;
  }

  /// The number of the colour of which all of an area is, as exactly as films keep colours; -1 if none.
  int ColourOf(const Rect& area) const {
    const Look seen = screen_.See(area);
    for (std::size_t i = 0; i < kColours.size(); ++i)
      if (std::ranges::all_of(seen.pixels, [&](Rgb pixel) { return Near(pixel, kColours.at(i)); }))
        return static_cast<int>(i);
    return -1;
  }
  static bool Near(Rgb one, Rgb other) {
    for (int shift = 0; shift < 24; shift += 8) {
      const int a = one >> shift & 0xFF, b = other >> shift & 0xFF;
      if (std::abs(a - b) > 8) return false;
    }
    return true;
  }
  bool Reaches(int colour, const Rect& area) const {
    return Soon([&] { return ColourOf(area) == colour; });
  }

  /// Follows the film from its first colour to its last; how much later each colour came than its tone.
  std::vector<double> Lags() const {
    std::vector<Clock::time_point> came;
    for (int colour = 0; colour < 4; ++colour) {
      EXPECT_TRUE(Reaches(colour, {kMiddle.x, kMiddle.y, 1, 1})) << colour;
      came.push_back(Clock::now());
    }
    Wait(0.2);  // for the sound to be recorded
    std::vector<double> lags;
    for (std::size_t i = 1; i < came.size(); ++i) {
      const auto heard = ears_->Heard(kTones.at(i));
      if (!heard.empty())
        lags.push_back(std::chrono::duration<double>(came[i] - ears_->When(heard[0].from)).count());
    }
    return lags;
  }
};

// Faults: a film beside its place, over the art or in wrong colours; sound and picture apart; a pause that is
// none, an end that is not noticed, a second run that does not come, a mode that starts or loses the film.
TEST_F(FilmStory, AFilmIsTheUsersOwn) {
  Start();
  OpenFilm(kFilm);
  std::vector<double> lags = Lags();
  ASSERT_EQ(lags.size(), 3U);
  std::ranges::sort(lags);
  EXPECT_LE(std::abs(lags[1]), 0.08) << "sound and picture are apart, " << testing::PrintToString(lags);
  EXPECT_EQ(Differs(kKino, Cinema(2, 0, kPlace)), "");
  EXPECT_EQ(ColourOf(kPlace), 3);

  EXPECT_TRUE(KinoShows(kPlay, 0)) << "the end is not noticed";
  ClickKino(kPause);
  EXPECT_EQ(Differs(kKino, Cinema(0, 0, kPlace)), "") << "a pause after the end";
  EXPECT_EQ(ColourOf(kPlace), 3) << "the last picture should stand";
  for (const int tone : kTones) EXPECT_NEAR(ears_->Seconds(tone), 1, 0.06) << tone;

  ClickKino(kPlay);
  EXPECT_TRUE(Reaches(0, kPlace)) << "not from the beginning";
  EXPECT_TRUE(Reaches(1, kPlace));
  Wait(0.3);
  ClickKino(kPause);
  EXPECT_TRUE(FallsSilent());
  EXPECT_EQ(Differs(kKino, Cinema(0, 2, kPlace)), "");
  const double paused = ears_->Now();
  ClickKino(kWhole);
  const Size screen = screen_.Extent();
  const Rect whole{0, 0, screen.width, screen.height};
  EXPECT_TRUE(Reaches(1, whole));
  Wait(0.5);
  EXPECT_EQ(ColourOf(whole), 1) << "the change of the mode starts the film";
  ClickScreen({30, 700});
  EXPECT_EQ(Differs(kKino, Cinema(0, 2, kPlace)), "");
  EXPECT_EQ(ColourOf(kPlace), 1);
  EXPECT_LT(ears_->Peak(paused), 0.01);

  ClickKino(kPlay);
  EXPECT_TRUE(Reaches(2, kPlace));
  ClickKino(kWhole);
  EXPECT_TRUE(Reaches(2, whole));
  ClickScreen(kMiddle);
  EXPECT_TRUE(Reaches(2, kPlace)) << "it should go on in the window";
  EXPECT_TRUE(Reaches(3, kPlace));
  EXPECT_EQ(Differs(kKino, Cinema(2, 0, kPlace)), "");
  EXPECT_TRUE(KinoShows(kPlay, 0));
  Wait(0.1);
  for (const int tone : kTones) EXPECT_NEAR(ears_->Seconds(tone), 2, 0.25) << tone;
  CloseFilm();
  EXPECT_TRUE(StaysSilent(0.3));

  OpenFilm(kOld);
  Look old = Cinema(2, 0, kOldPlace);
  old.Fill(kOldPlace.Moved({-kKino.left, -kKino.top}), kOldFilm);
  EXPECT_EQ(Differs(kKino, old), "");
  ClickKino(kWhole);
  Look fitted(whole.width, whole.height, 0);
  fitted.Fill({69, 0, 886, 768}, kOldFilm);
  EXPECT_EQ(Differs(whole, fitted), "");
  ClickScreen({5, 5});
  EXPECT_EQ(Differs(kKino, old), "");
  CloseFilm();

  OpenFilm(kBroken);
  Wait(0.7);
  EXPECT_EQ(Differs(kKino, Cinema(2, 0, {})), "");
  ClickKino(kPause);
  EXPECT_EQ(Differs(kKino, Cinema(0, 2, {})), "");
  ClickKino(kPlay);
  CloseFilm();
  Leave();
}

}  // namespace
}  // namespace orvanta::test
