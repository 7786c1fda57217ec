// What a screen reader learns about each view, and what it can do.

#include "platform/AccessibleChanges.h"
#include "support/Story.h"

namespace orvanta::test {
namespace {

struct Accessible : Story {
  /// The tree of the front window.
  std::string Look() override { return AccessibleListing(user.host.AccessibleWindows().at(0)); }
  /// The rest of a line of the tree, starting at a word or name; empty if there is none.
  std::string Line(const std::string& part) {
    const std::string look = Look();
    const std::size_t at = look.find(part);
    return at == look.npos ? "" : look.substr(at, look.find('\n', at) - at);
  }
  void Invoke(const std::string& name, Milliseconds time = 2000) {
    user.host.Invoke(name);
    user.Run(time);
  }
  /// What a screen reader hears of the main window after the user has done something, and what it is led to.
  std::string Hears(const std::string& act) {
    constexpr const char* kWords[] = {"gone", "came", "name", "time", "value", "pressed", "enabled"};
    const AccessibleNode before = Main().Accessible();
    user.Do(act);
    const AccessibleNode now = Main().Accessible();
    std::string heard;
    for (const auto& [kind, id] : AccessibleChanges(before, now)) {
      const AccessibleNode* node = FindAccessible(kind == AccessibleChange::Kind::Gone ? before : now, id);
      heard += std::string(kWords[static_cast<int>(kind)]) + " " + node->name + ", ";
    }
    focus_ = AccessibleFocus(before, focus_, now);
    return heard + "at " + FindAccessible(now, focus_)->name;
  }
  ControlId focus_ = kWholeForm;
  const std::string ways_ = "  button \"Wstecz\"\n  button \"Do menu głównego\"\n  button \"Wyjście\"\n",
                    bar_ = ways_ + "  button \"Wyłącz dźwięk\"\n  button \"Pomoc\"\n",
                    end_ = "  button \"O płycie\"\n  button \"Minimalizuj\"\n";
};

// Faults: a view that is described as the previous one; things that it covers; a state that is left out.
TEST_F(Accessible, EveryViewIsDescribedAsItIsSeen) {
  disc.Set("Gra", "Note", "Łamigłówka & zabawa");
  disc.Set("Gra", "System", "Pentium 90");
  disc.Shots("Gra", 4);
  user.Launch();
  EXPECT_EQ(Look(), "window \"Ekran startowy\"\n");
  user.Run(8000);
  user.Do("hover lblPos12");
  std::string root =
      "window \"Płyta próbna\"\n  list \"Menu główne\"\n    item \"Gra\"\n    item \"Piosenka\"\n"
      "    item \"Film\" hovered\n    item \"Dalej\"\n";
  EXPECT_EQ(Look(), root + "  button \"Wstecz\" unavailable\n  button \"Do menu głównego\" unavailable\n" +
                        bar_.substr(bar_.find("  button \"Wyj")) + end_);
  user.Do("choose 0");
  EXPECT_EQ(
      Look(),
      "window \"Płyta próbna\"\n  heading \"Gra\"\n  text \"Łamigłówka & zabawa\"\n"
      "  text \"Minimalne wymagania sprzętowe:\"\n  text \"Pentium 90\"\n  list \"Zrzuty ekranu\"\n"
      "    item \"Zrzut ekranu 1 z 4\"\n    item \"Zrzut ekranu 2 z 4\"\n    item \"Zrzut ekranu 3 z 4\"\n"
      "    item \"Zrzut ekranu 4 z 4\" out of sight\n  slider \"Przewijanie\" 0 of 0..180\n" +
          bar_ + "  button \"Uruchom\"\n" + end_);
  After(500, [&] {
    EXPECT_EQ(Look(),
              "window \"Zrzut ekranu\"\n  picture \"Zrzut ekranu 2 z 4\"\n"
              "  text \"kliknij rysunek aby zniknął...\"\n");
    user.host.Invoke("Zrzut ekranu 2 z 4");
  });
  user.Do("click picShot1, click Help");
  EXPECT_EQ(Look(),
            "window \"Płyta próbna\"\n  page \"Strona pomocy\"\n"
            "  slider \"Przewijanie\" 0 of 0..200\n" +
                bar_ + "  button \"Uruchom\" unavailable\n" + end_);
  user.Do("click imgPomoc, click imgUp, choose 2");
  After(2500, [&] {
    EXPECT_EQ(Look(),
              "window \"Orvanta - Kino\"\n  progress bar \"Czas filmu\" (0:01 z 0:30) 5 of 0..100\n"
              "  button \"Odtwarzaj\" pressed unavailable\n  button \"Zamknij kino\"\n"
              "  button \"Pauza\"\n  button \"Cały ekran\"\n");
    user.host.Invoke("Zamknij kino");
  });
  user.Do("press Film");
  EXPECT_EQ(Line("\"Film\""), "\"Film\"");
}

// Faults: a view, a hover or music that is not reported; a list that is reported anew at each move of the
// mouse.
TEST_F(Accessible, ReportsWhatChangesAndNothingElse) {
  user.Do("start, aside");
  EXPECT_EQ(Hears("run 1000"), "at Menu główne");
  EXPECT_EQ(Hears("hover lblPos13"), "at Dalej");
  EXPECT_EQ(Hears("hover Help"), "at Pomoc");
  EXPECT_EQ(Hears("choose 3, aside"),
            "gone Piosenka, gone Film, gone Dalej, name Dalej, name Druga, enabled Wstecz, enabled Do menu "
            "głównego, at Dalej");
  user.Do("choose 0, aside");
  EXPECT_EQ(Hears("run 10"), "at Druga");
  EXPECT_EQ(Hears("press Start, run 50"),
            "time Odtwarzanie muzyki, value Odtwarzanie muzyki, enabled Pomoc, pressed Uruchom, enabled "
            "Uruchom, enabled Pauza, pressed Stop, enabled Stop, enabled O płycie, at Druga");
}

// Faults: music that is described too late, or with the times of the previous piece.
TEST_F(Accessible, MusicIsDescribedAndPlayed) {
  user.Do("start, choose 1");
  const auto seen = [&] {
    return Line("progress bar") + Line("\"Uruchom\"") + Line("\"Pauza\"") + Line("\"Stop\"");
  };
  const std::string silent =
      "progress bar \"Odtwarzanie muzyki\" 0 of 0..100\"Uruchom\"\"Pauza\" unavailable\"Stop\" pressed "
      "unavailable";
  EXPECT_EQ(seen(), silent);
  Invoke("Uruchom", 5000);
  EXPECT_EQ(seen(),
            "progress bar \"Odtwarzanie muzyki\" (0:05 z 0:20) 25 of 0..100"
            "\"Uruchom\" pressed unavailable\"Pauza\"\"Stop\"");
  EXPECT_EQ(Line("\"Pomoc\""), "\"Pomoc\" unavailable");
  Invoke("Pauza");
  EXPECT_EQ(Line("\"Pauza\""), "\"Pauza\" pressed unavailable");
  Invoke("Stop");
  EXPECT_EQ(seen(), silent);
  Invoke("Uruchom", 21000);
  EXPECT_EQ(seen(), silent) << "it has ended";
}

// Faults: a press that is lost while the program waits, passes a modal window, or reaches something that is
// gone.
TEST_F(Accessible, APressHasTheEffectOfAClickWheneverItComes) {
  disc.Menu("Dalej", std::vector<std::string>(30, "Druga"));
  user.Do("start");
  Invoke("Dalej");
  EXPECT_EQ(Main().MenuLevel, 1);
  user.host.SetValue("Przewijanie", 1e9);
  user.Run(10);
  EXPECT_EQ(Main().lblPos1(29).Top + 26, Main().picTlo.Height);
  EXPECT_EQ(Line("slider"), "slider \"Przewijanie\" 200 of 0..200");
  user.host.SetValue("Przewijanie", 0);
  After(100, [&] { user.host.Invoke("Do menu głównego"); });  // while the crosshair runs or the music fades
  Invoke("Druga");
  EXPECT_EQ(Main().MenuLevel, 0);
  user.host.Invoke("Gra");
  user.host.Invoke("Dalej");  // it is gone, with the list, when its turn comes
  user.Run(2000);
  EXPECT_EQ(Line("heading"), "heading \"Gra\"");
  After(500, [&] {
    user.host.Invoke("Wstecz");
    user.host.Invoke("kliknij rysunek aby zniknął...");
  });
  After(1000, [&] { user.host.Invoke("Zrzut ekranu 1 z 1"); });
  Invoke("Zrzut ekranu 1 z 1");
  EXPECT_EQ(Line("heading"), "heading \"Gra\"") << "the viewer is in front of the way back";
  Invoke("Wstecz");
  Invoke("Wstecz");
  EXPECT_EQ(Line("list"), "list \"Menu główne\"");
  Invoke("Wyjście", 8000);
  EXPECT_TRUE(user.ended);
}

}  // namespace
}  // namespace orvanta::test
