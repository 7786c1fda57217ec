// The detail view of an entry: its texts, its screenshots and the viewer.

#include <algorithm>
#include <sstream>

#include "support/Story.h"

namespace orvanta::test {
namespace {

struct Detail : Story {
  std::string Look() override {
    std::ostringstream text;
    text << "knob " << Main().imgSSuwak.Top << ", first shot " << Main().picShot(0).Top;
    return text.str();
  }
};

TEST_F(Detail, ShowsItsTextsAndNothingOfThePreviousEntry) {
  disc.Set("Gra", "Note", "Łamigłówka & zabawa");
  disc.Set("Gra", "System", "Pentium 90");
  disc.Set("Film", "Shot1", "brak.gif");
  user.Do("start, choose 0");
  const auto painted = user.host.WindowOf(Main()).Painted().strokes;
  for (const std::string text :
       {"Łamigłówka & zabawa", "  Minimalne wymagania sprzętowe:", "Pentium 90", "Gra"})
    EXPECT_TRUE(std::ranges::any_of(painted, [&](const auto& s) { return s.text == text; })) << text;
  user.Do("click imgUp, choose 2");
  EXPECT_EQ(Main().lblNote.Caption() + Main().lblSystem.Caption(), "");
  EXPECT_EQ(Shown(Main().picShot(0)), "") << "a picture that cannot be read";
  EXPECT_FALSE(Hourglass());
  EXPECT_FALSE(Main().picTlo.Visible());
  EXPECT_FALSE(Main().S2.Visible());
}

TEST_F(Detail, AFourthShotBringsTheSliderWhoseVariablesThePagesShare) {
  disc.Shots("Gra", 4);
  disc.Shots("Film", 4);
  disc.Shots("Druga", 3);
  disc.Set("Druga", "Shot5", "shot.gif");
  Tell({{"start, choose 0", "knob 20, first shot 6"},
        {"drag imgSSuwak 5, drop", "knob 25, first shot 3.5"},
        {"drag imgSSuwak 400, drop", "knob 200, first shot -84"}});
  EXPECT_EQ(Main().imgSSuwak.Bounds(), (Rect{140, 200, 16, 20}));
  EXPECT_EQ(Main().picShot(3).Top + Main().picShot(3).Height, 253);
  Tell({{"drag imgSSuwak -400, drop, click Help", "knob 20, first shot 6"}});
  EXPECT_EQ(Main().slider.SuwakRange, 600 - 309) << "set for the tall page";
  // The next entry starts at the top but remembers the last position of the knob: a move to that very
  // position does not move the pictures.
  Tell({{"click Help, drag imgSSuwak 40, drop", "knob 60, first shot -14"},
        {"click imgUp, choose 2", "knob 20, first shot 6"},
        {"drag imgSSuwak 40, drop", "knob 60, first shot 6"},
        {"drag imgSSuwak 1, drop", "knob 61, first shot -14.5"},
        {"click imgUp, choose 3, choose 0", "knob 61, first shot 6"}});
  EXPECT_EQ(Main().picShot.UBound(), 2) << "numbered keys end at the first gap";
  EXPECT_EQ(Main().picShot(2).Bounds(), (Rect{7, 6 + 2 * 85, 123, 82})) << "whatever the size of the file";
  EXPECT_FALSE(Main().imgSSuwak.Visible()) << "three fit into the frame";
}

TEST_F(Detail, AReleaseLostToTheViewerDoesNotLeaveTheButtonHeld) {
  user.Do("start, choose 0, hover picShot0");
  user.host.Press(kRightButton);
  After(500, [&] { user.host.ReleaseUntold(kRightButton); });
  user.Do("after 1000 click picPic, click picShot0, run 100, click imgUp");
  EXPECT_EQ(Main().MenuLevel, 0);
}

TEST_F(Detail, TheViewerShowsThePictureThatIsThereAndTheTickGoesOn) {
  user.Do("start, choose 0");
  disc.Picture("shot.gif", 10, 10);
  const std::size_t loads = user.host.pictures.size();
  user.Do("after 800 hover Minimise, after 1000 click picPic");
  After(900, [&] {
    EXPECT_EQ(user.shell.frmShowPic->lblTxt.Caption(), "kliknij rysunek aby zniknął...  ");
    EXPECT_EQ(user.host.pictures.size(), loads) << "the picture is not read again";
    EXPECT_EQ(user.Looks({BarButton::Minimise}), "Minimise over")
        << "the tick goes on, since the viewer counts as active";
  });
  user.Do("click picShot0");
  EXPECT_EQ(user.shell.frmShowPic.Loaded(), nullptr);
  EXPECT_FALSE(user.shell.modMain.ShowPicOpen);
  EXPECT_EQ(user.host.active, &Main());
}

}  // namespace
}  // namespace orvanta::test
