// The detail view of an entry.

#include <gtest/gtest.h>

#include <algorithm>

#include "support/EntryDisc.h"

namespace orvanta::test {
namespace {

using Stroke = RecordingCanvas::Stroke;

class Detail : public ::testing::Test {
 protected:
  MainForm& Main() { return user.Main(); }
  std::vector<Stroke> Painted(Stroke::Kind kind) {
    std::vector<Stroke> found;
    for (const Stroke& stroke : user.host.WindowOf(Main()).Look().strokes) {
      if (stroke.kind == kind) found.push_back(stroke);
    }
    return found;
  }
  const Stroke* TextOf(const std::string& text) {
    texts = Painted(Stroke::Kind::Text);
    for (const Stroke& stroke : texts) {
      if (stroke.text == text) return &stroke;
    }
    return nullptr;
  }

  EntryDisc disc;
  TestShell user{disc};
  std::vector<Stroke> texts;
};

TEST_F(Detail, ShowsItsFixedPlacesAndColours) {
  disc.Set("Gra", "Note", "Łamigłówka & zabawa");
  disc.Set("Gra", "System", "Pentium 90");
  EntryDisc::Begin(user, EntryDisc::kProgram);
  struct Expected {
    const char* text;
    Rect place;
    ColourValue colour;
  };
  for (const Expected& e : {Expected{"Łamigłówka & zabawa", {113, 184, 269, 177}, 0},
                            {"  Minimalne wymagania sprzętowe:", {113, 392, 268, 18}, 0xFFFFFF},
                            {"Pentium 90", {117, 409, 261, 34}, 0x800000},
                            {"Gra", {100, 110, 391, 26}, 255}}) {
    const Stroke* text = TextOf(e.text);
    ASSERT_TRUE(text) << e.text;
    EXPECT_EQ(text->whole, e.place) << e.text;
    EXPECT_EQ(text->colour, e.colour) << e.text;
  }
  const std::vector<Stroke> fills = Painted(Stroke::Kind::Fill);
  const auto filled = [&](Rect place, ColourValue colour) {
    return std::any_of(fills.begin(), fills.end(),
                       [&](const Stroke& f) { return f.whole == place && f.colour == colour; });
  };
  EXPECT_TRUE(filled({113, 184, 269, 177}, 0xFFFFFF));
  EXPECT_TRUE(filled({113, 394, 268, 49}, 0xE0E0E0));
  EXPECT_TRUE(filled({113, 392, 268, 18}, 0x404040));
  EXPECT_TRUE(filled({117, 409, 261, 34}, 0xE0E0E0));
  EXPECT_TRUE(filled({388, 184, 161, 259}, 0xFFFFFF));
  EXPECT_EQ(Main().lblNote.FontSize, 9.75);
  EXPECT_TRUE(Main().lblSystem.FontBold() && !Main().Label1.FontBold());
  EXPECT_EQ(Main().lblSystem.FontName(), "Arial");
  EXPECT_EQ(Main().MousePointer, Form::kDefaultPointer);
  EXPECT_FALSE(Main().S2.Visible());

  user.Click(Main().imgBack);
  const auto strokes = user.host.WindowOf(Main()).Look().strokes;
  const auto named = [](const char* text) { return [text](const Stroke& s) { return s.text == text; }; };
  const auto over = std::find_if(std::find_if(strokes.begin(), strokes.end(), named("Pentium 90")),
                                 strokes.end(), named("tlo.gif"));
  EXPECT_NE(over, strokes.end()) << "the list is painted over it";
}

TEST_F(Detail, EveryKindHasItsButtonsAndOnlyMusicAMarker) {
  for (const auto& [playAs, music] : {std::pair{"MUSIC", true},
                                      {"music", true},
                                      {"mUsIc", true},
                                      {"MUSIC ", true},
                                      {"MUSICAL", false},
                                      {"avi", false},
                                      {"0", false}}) {
    EntryDisc entries;
    entries.Set("Piosenka", "PlayAs", playAs);
    TestShell shell(entries);
    EntryDisc::Begin(shell, EntryDisc::kMusic);
    EXPECT_EQ(shell.Main().ButtonM(6).Visible(), music) << playAs;
    EXPECT_EQ(shell.Main().ButtonM(9).Visible(), !music) << playAs;
    EXPECT_EQ(shell.Main().S2.Visible(), music) << playAs;
    EXPECT_TRUE(shell.shell.modMain.ItemSoundHold);
    if (!music) continue;
    EXPECT_EQ(shell.Main().S2.Bounds(), (Rect{120, 455, 3, 9}));
    EXPECT_EQ(shell.Main().S2Len, 200);
    EXPECT_EQ(shell.Main().S2.FillColor, 0x0000FF);
    EXPECT_EQ(shell.Main().S2.BorderColor, 0x0000C0);
  }
}

TEST_F(Detail, OpensUnderTheHourglassWithItsTextsBeforeItsPictures) {
  disc.Set("Piosenka", "Note", "opis");
  disc.Set("Piosenka", "Shot1", "big.gif");
  disc.Picture("big.gif", 640, 480);
  user.Start();
  bool hourglass = false;
  user.host.OnSleep = [&] {
    if (Main().AM2.CurrentState() == ActiveMovie::kPaused)
      hourglass = Main().MousePointer == Form::kHourglassPointer;
  };
  user.Choose(EntryDisc::kMusic);
  EXPECT_TRUE(hourglass) << "the second in which the music falls silent";
  EXPECT_EQ(Main().MousePointer, Form::kDefaultPointer);
  EXPECT_EQ(Main().MenuLevel, 1);
  EXPECT_TRUE(Main().imgBack.Enabled() && Main().imgUp.Enabled());
}

TEST_F(Detail, EmptyKeysLeaveNothingOfTheEntryBefore) {
  disc.Set("Gra", "Note", "opis");
  disc.Set("Gra", "System", "wymagania");
  disc.Set("Film", "Shot1", "brak.gif");
  EntryDisc::Begin(user, EntryDisc::kProgram);
  user.Click(Main().imgUp);
  user.Choose(EntryDisc::kFilm);
  EXPECT_EQ(Main().lblNote.Caption(), "");
  EXPECT_EQ(Main().lblSystem.Caption(), "");
  EXPECT_EQ(Shown(Main().picShot(0)), "") << "a picture that cannot be read";
  EXPECT_EQ(Main().MousePointer, Form::kDefaultPointer);
  EXPECT_FALSE(Main().picTlo.Visible());
}

TEST_F(Detail, AMusicEntryComesBackFromAPageInTheStoppedState) {
  EntryDisc::Begin(user, EntryDisc::kMusic);
  user.Click(Main().ButtonM(3));
  EXPECT_TRUE(Main().picTlo.Visible());
  user.Click(Main().ButtonM(3));
  EXPECT_FALSE(Main().picTlo.Visible());
  EXPECT_EQ(Main().PressedButton, 6);
  EXPECT_EQ(Shown(Main().ButtonM(6)), "stop2.gif");
  EXPECT_EQ(Main().lblBackTxt.Caption(), "Piosenka");
}

TEST_F(Detail, AClickBackWhileTheMusicFallsSilentDoesNoHarm) {
  disc.Set("Piosenka", "Shot2", "shot.gif");
  user.Start();
  user.host.MoveMouse(user.MiddleOf(Main().lblPos1(EntryDisc::kMusic)));
  user.Run(100);
  user.host.After(800, [&] {
    ASSERT_EQ(Main().AM2.CurrentState(), ActiveMovie::kPaused);
    user.host.Click(user.MiddleOf(Main().imgUp));
  });
  user.Click(Main().lblPos1(EntryDisc::kMusic));
  EXPECT_EQ(Main().MenuLevel, 0);
  EXPECT_EQ(Main().picShot.UBound(), 1);
  user.Run(200);
  EXPECT_EQ(Main().AM2.CurrentState(), ActiveMovie::kRunning) << "the way back has ended the silence";
}

}  // namespace
}  // namespace orvanta::test
