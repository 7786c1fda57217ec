// Moving through the menu tree, the box under the cursor and the crosshair.

#include "support/Story.h"

namespace orvanta::test {
namespace {

using Ends = std::array<double, 4>;
Ends EndsOf(const Line& line) { return {line.X1, line.Y1, line.X2, line.Y2}; }

struct Browse : Story {
  Browse() {
    disc.Menu("MAINMENU", {"Gry", "Muzyka", "Filmy", ""});
    disc.Menu("Gry", {"Logiczne"});
    disc.Menu("Filmy", Names(12, "Gry"));
  }
  /// The level, the name of the node and what the centre shows: "1 Gry: Logiczne".
  std::string Look() override {
    std::string text = std::to_string(Main().MenuLevel);
    if (Main().imgKreska.Visible) text += " " + Main().lblBackTxt2.Caption();
    text += !Main().picTlo.Visible ? " (entry)" : Main().imgPomoc.Visible ? " (help)" : ":";
    for (int i = 0; i <= std::min(4, Main().lblPos1.UBound()); ++i)
      if (Main().lblPos1(i).Visible) text += " " + Main().lblPos1(i).Caption();
    return text;
  }
  Point InMenu(int x, int y) { return {178 + 90 + x, 136 + 140 + y}; }
  /// Moves the mouse and returns the upper edge of the box around a label; -1 if there is none.
  double BoxAt(int x, int y) {
    user.host.MoveMouse(InMenu(x, y));
    user.Run(100);
    return Main().Line1(0).Visible && Main().Line1(3).Visible ? Main().Line1(0).Y1() : -1;
  }
};

TEST_F(Browse, GoesDownBothFilesAndComesBackLevelByLevelOrInOneStep) {
  disc.File("Data/Param.ini", "[mainmenu]\r\nMENU4=Programy\r\n");
  disc.Set("GLOBAL", "MenuLevels", "1");
  disc.Set("MAINMENU", "Menu5", "Ostatni");
  disc.Menu("Logiczne", {"Gra", "MAINMENU"});
  Tell({{"start, click imgBack", "0: Gry Muzyka Filmy Programy Ostatni"},
        {"choose 0", "1 Gry: Logiczne"},
        {"choose 0", "2 Logiczne: Gra MAINMENU"},
        {"choose 0", "3 Gra (entry)"},
        {"click imgBack", "2 Logiczne: Gra MAINMENU"},
        {"click Help", "2 (help)"},
        {"click imgBack", "1 Gry (help) Logiczne"},
        {"click imgPomoc", "1 Gry: Logiczne"},
        {"choose 0, choose 1, choose 0", "4 Gry: Logiczne"},  // in a circle, deeper than MenuLevels allows
        {"choose 0, click ImgBack2", "4 Gry: Logiczne"}});
  disc.File("Data/Param.ini", "");
  Tell({{"click imgUp2", "0: Gry Muzyka Filmy"}});
}

TEST_F(Browse, OpensTheSectionOfAnItemThatQuotesIndent) {
  disc.Set("MAINMENU", "Menu1", "\"  Gry\"");
  Tell({{"start", "0:   Gry Muzyka Filmy"}, {"choose 0", "1   Gry: Logiczne"}});
}

TEST_F(Browse, FollowsTheUserWhileTheMusicFadesForAnEntry) {
  disc.Menu("Gry", {"Film"});
  Tell({{"start, choose 0, hover lblPos10, after 900 click imgBack, click lblPos10, run 100", "1 Gry: Film"},
        {"hover lblPos10, after 900 click imgUp, click lblPos10, run 100", "0: Gry Muzyka Filmy"}});
  EXPECT_EQ(Main().AM2.CurrentState(), ActiveMovie::kRunning);
  EXPECT_FALSE(Hourglass());
  EXPECT_FALSE(user.Button(BarButton::Film).Visible());
  Tell({{"choose 0, hover lblPos10, after 900 click Help, click lblPos10", "2 (help)"},
        {"click imgPomoc", "2 Film (entry)"}});
}

TEST_F(Browse, MarksAnInertLabelOnce) {
  user.Do("start, choose 1");
  EXPECT_EQ(Main().lblPos1(1).ForeColor(), 0x00FFFF);
  EXPECT_EQ(Takes("hover lblPos11, click lblPos11"), 101) << "a marked label gets no crosshair";
}

TEST_F(Browse, DrawsTheBoxAroundTheLabelUnderTheCursor) {
  user.Do("start, hover lblPos10");
  // The label is at 20, 10 and is 401 by 26 pixels large; each line starts where the previous one ends.
  const Ends ends[] = {{18, 8, 422, 8}, {422, 8, 422, 35}, {422, 35, 18, 35}, {18, 35, 18, 8}};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(EndsOf(Main().Line1(i)), ends[i]);
  // The edges belong to the label, and so do two rows below it; where two labels share a row, the lower one
  // wins.
  const int places[][3] = {{20, 10, 8},  {421, 36, 8}, {421, 37, 35}, {422, 20, -1}, {20, 40, 35},
                           {19, 40, -1}, {20, 20, 8},  {20, 9, -1},   {20, 92, 62},  {20, 93, -1}};
  for (const auto& [x, y, box] : places) EXPECT_EQ(BoxAt(x, y), box) << x << ", " << y;
  EXPECT_EQ(BoxAt(100, 92), 62) << "also if the cursor returns to the label that it left";
  user.Do("choose 2");
  EXPECT_EQ(BoxAt(100, 52 + 8 * 27), 50 + 8 * 27);
  EXPECT_EQ(BoxAt(100, 52 + 9 * 27 + 5), -1) << "the tenth label ends below the menu area";
}

TEST_F(Browse, SweepsTheCrosshairToTheCursorBeforeAClickActs) {
  user.Do("start");
  EXPECT_EQ(BoxAt(95, 15), 8);
  std::vector<double> seen;
  user.host.OnSleep = [&] {
    EXPECT_TRUE(Main().Line2(0).Visible());
    EXPECT_EQ(Main().MenuLevel, 0);
    EXPECT_EQ(Main().Line2(0).X1(), std::min(95.0, static_cast<double>(seen.size() * 10)));
    seen.push_back(Main().Line2(1).Y1());
  };
  const Milliseconds begin = user.host.Now();
  user.host.Click(InMenu(95, 15));
  user.Run(1);
  EXPECT_EQ(seen, (std::vector<double>{0, 1, 3, 4, 6, 7, 9, 11, 12, 14, 15}));
  EXPECT_EQ(user.host.sleeps.back().duration, 400);
  EXPECT_EQ(user.host.Now(), begin + 410);
  EXPECT_EQ(EndsOf(Main().Line2(0)), (Ends{95, 0, 95, 309}));
  EXPECT_EQ(EndsOf(Main().Line2(1)), (Ends{0, 15, 472, 15}));
  EXPECT_EQ(Look(), "1 Gry: Logiczne");
}

TEST_F(Browse, HandlesClicksDuringTheCrosshair) {
  // A click on a second label is ignored; the help page replaces the list.
  Tell({{"start, hover lblPos10, after 5 click lblPos12, click lblPos10, run 2000", "1 Gry: Logiczne"},
        {"click imgUp, hover lblPos12, after 5 click Help, click lblPos12, run 2000", "0 (help)"}});
  EXPECT_FALSE(Main().Line2(0).Visible);
}

}  // namespace
}  // namespace orvanta::test
