// The program on a machine on which nothing can be heard.

#include <QApplication>
#include <QMessageBox>
#include <chrono>

#include "desktop/ForkedShell.h"
#include "desktop/HeardShell.h"
#include "desktop/ScratchFolder.h"
#include "platform/desktop/SoundCard.h"

namespace orvanta::test {
namespace {

const std::string kNoCard = "Brak lub źle skonfigurowana karta dźwiękowa.\n";

class SoundStorySilent : public HeardShell {
 protected:
  using Clock = std::chrono::steady_clock;

  SoundStorySilent() {
    disc_.Entry("Gra", {{"Execute", "%:\\gra.exe"}});
    disc_.Entry("Piosenka", {{"PlayAs", "Music"}, {"Parameters", "%:\\Data\\Sound\\song.wav"}});
    disc_.Entry("Film", {{"PlayAs", "AVI"}, {"Parameters", "%:\\film.avi"}});
    Sound("song.wav", {3000, 3000});
    // Voices so long that waiting for them shows.
    const MediaFiles::Tones long_(40, 6000);
    for (const std::string voice : {"Start", "Music", "Exit1"}) {
      Sound(voice + ".wav", long_);
      disc_.Set("VOICES", voice, voice + ".wav");
    }
    ears_.reset();
    server_.Kill();
  }

  /// What a message with this text looks like inside its frame. It is shown for a moment by another process.
  Look LookOfMessage(const std::string& text) const {
    const ScratchFolder scratch;
    const std::filesystem::path picture = scratch.path / "message";
    InAnotherProcess([&] {
      int argc = 1;
      char name[] = "message", *argv[] = {name, nullptr};
      const QApplication application(argc, argv);
      QMessageBox box(QMessageBox::Critical, "", QString::fromStdString(text), QMessageBox::Ok);
      box.show();
      if (!Eventually([&] {
            QCoreApplication::processEvents();
            return box.isActiveWindow();
          }))
        return 1;
      const QImage seen = box.grab().toImage().convertToFormat(QImage::Format_RGB32);
      return seen.save(QString::fromStdString(picture.string()), "PNG") ? 0 : 1;
    });
    const QImage seen(QString::fromStdString(picture.string()), "PNG");
    Look look(seen.width(), seen.height());
    for (int y = 0; y < look.height; ++y)
      for (int x = 0; x < look.width; ++x)
        look.pixels[static_cast<std::size_t>(y * look.width + x)] = seen.pixel(x, y) & 0xFFFFFF;
    return look;
  }

  /// Expects a message before the main window and closes it with its button.
  void ExpectMessage(const Look& expected) const {
    ASSERT_TRUE(Soon([&] { return screen_.Active() != Main() && screen_.OwnerOf(screen_.Active()) != 0; }))
        << "no message";
    const WindowId message = screen_.Active();
    EXPECT_EQ(screen_.TitleOf(message), screen_.TitleOf(Main()));
    EXPECT_EQ(Differs(screen_.PlaceOf(message), expected), "");
    screen_.PressReturn();
    EXPECT_TRUE(Soon([&] { return screen_.Active() == Main(); })) << "the message stays";
  }
};

// Faults: waiting for voices that nobody hears; a sound switch that acts; music or a film that plays to
// nobody.
TEST_F(SoundStorySilent, WithoutASoundCardOnlyTwoMessagesTellOfSound) {
  if (IsSoundCardEnabled()) GTEST_SKIP() << "this machine has a sound card that ALSA can play on";
  const Look noMusic = LookOfMessage(kNoCard + "Odtworzenie muzyki jest niemożliwe.");
  const Look noFilm = LookOfMessage(kNoCard + "Odtworzenie filmu jest niemożliwe.");
  ASSERT_NE(Difference(noMusic, noFilm), "");
  Start();

  EXPECT_TRUE(Shows(2, 0)) << "the switch should stand at off";
  ClickButton(2);
  Wait(0.5);
  EXPECT_TRUE(Shows(2, 1)) << "over it, and that is all";

  OpenEntry(1, 6, 2);
  ClickButton(4);
  ExpectMessage(noMusic);
  for (const int button : {5, 6}) {
    ClickButton(button);
    Wait(0.15);
    EXPECT_TRUE(Shows(button, button == 6 ? 2 : 1));
  }
  GoBack();
  OpenEntry(2, 9, 0);
  ClickButton(9);
  ExpectMessage(noFilm);
  EXPECT_TRUE(Soon([&] { return Windows().size() == 6; })) << "a cinema all the same";

  PointAt(MiddleOf(ButtonBox(0)));
  EXPECT_TRUE(Shows(0, 1));
  const auto begin = Clock::now();
  Leave();
  EXPECT_LT(Clock::now() - begin, std::chrono::milliseconds(1800)) << "time for a farewell that nobody hears";
}

}  // namespace
}  // namespace orvanta::test
