// The detail view of an entry: its texts, its screenshots and the viewer.

#include <algorithm>

#include "support/Story.h"

namespace orvanta::test {
namespace {

struct Detail : Story {
  /// The tops of the knob and of the first screenshot.
  std::string Look() override {
    const std::string text = std::to_string(Main().picShot(0).Top);
    return std::to_string(static_cast<int>(Main().imgSSuwak.Top)) + " " + text.substr(0, text.find('.') + 2);
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
  EXPECT_FALSE(Hourglass() || Main().picTlo.Visible() || Main().S2.Visible());
}

TEST_F(Detail, AFourthShotBringsTheSliderWhoseVariablesThePagesShare) {
  disc.Shots("Gra", 4);
  disc.Shots("Film", 4);
  disc.Shots("Druga", 3);
  disc.Set("Druga", "Shot5", "shot.gif");
  Tell({{"start, choose 0", "20 6.0"},
        {"drag imgSSuwak 5, drop", "25 3.5"},
        {"drag imgSSuwak 400, drop", "200 -84.0"}});
  EXPECT_EQ(Main().imgSSuwak.Bounds(), (Rect{140, 200, 16, 20}));
  EXPECT_EQ(Main().picShot(3).Top + Main().picShot(3).Height, 253);
  Tell({{"drag imgSSuwak -400, drop, click Help", "20 6.0"}});
  EXPECT_EQ(Main().slider.SuwakRange, 600 - 309) << "set for the tall page";
  // The next entry starts at the top but remembers the last position of the knob: a move to that very
  // position does not move the pictures.
  Tell({{"click Help, drag imgSSuwak 40, drop", "60 -14.0"},
        {"click imgUp, choose 2", "20 6.0"},
        {"drag imgSSuwak 40, drop", "60 6.0"},
        {"drag imgSSuwak 1, drop", "61 -14.5"},
        {"click imgUp, choose 3, choose 0", "61 6.0"}});
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
  EXPECT_TRUE(!user.shell.frmShowPic.Loaded() && !user.shell.modMain.ShowPicOpen && !user.ended);
  EXPECT_EQ(user.host.active, &Main());
}

}  // namespace
}  // namespace orvanta::test
