#include <gtest/gtest.h>

#include "support/TestShell.h"

namespace orvanta::test {
namespace {

/// A point of the menu area, in pixels of the screen.
Point InMenu(TestShell& user, int x, int y) {
  const Rect window = user.Main().Place();
  return {window.left + 90 + x, window.top + 140 + y};
}

void Hover(TestShell& user, int x, int y) {
  user.host.MoveMouse(InMenu(user, x, y));
  user.Run(60);
}

using Ends = std::array<double, 4>;
Ends EndsOf(const Line& line) { return {line.X1, line.Y1, line.X2, line.Y2}; }
bool BoxShown(TestShell& user) { return user.Main().Line1(0).Visible && user.Main().Line1(3).Visible; }

class Hovering : public testing::Test {
 protected:
  Hovering() { disc.Menu("MAINMENU", {"Gry", "Muzyka", "Filmy"}); }
  TestDisc disc;
};

TEST_F(Hovering, DrawsTheBoxAroundTheLabelUnderTheCursor) {
  TestShell user(disc);
  user.Start();
  Hover(user, 100, 20);
  ASSERT_TRUE(BoxShown(user));
  // The label stands at 20, 10 and is 401 by 26; each line starts where the one before it ends.
  EXPECT_EQ(EndsOf(user.Main().Line1(0)), (Ends{18, 8, 422, 8}));
  EXPECT_EQ(EndsOf(user.Main().Line1(1)), (Ends{422, 8, 422, 35}));
  EXPECT_EQ(EndsOf(user.Main().Line1(2)), (Ends{422, 35, 18, 35}));
  EXPECT_EQ(EndsOf(user.Main().Line1(3)), (Ends{18, 35, 18, 8}));

  struct Case {
    int x, y;
    bool shown;
    double top;  // of the box
  };
  // All bounds belong to the label, with two rows below it; on a shared row the lower label wins.
  for (const Case& c : {Case{20, 10, true, 8}, Case{421, 36, true, 8}, Case{421, 37, true, 35},
                        Case{422, 20, false, 35}, Case{19, 20, false, 35}, Case{20, 9, false, 35},
                        Case{20, 64 + 28, true, 62}, Case{20, 64 + 29, false, 62}}) {
    SCOPED_TRACE(testing::Message() << c.x << ", " << c.y);
    Hover(user, c.x, c.y);
    EXPECT_EQ(BoxShown(user), c.shown);
    EXPECT_EQ(user.Main().Line1(0).Y1(), c.top);
  }
  Hover(user, 100, 64 + 20);
  EXPECT_TRUE(BoxShown(user)) << "also when the cursor comes back to the label that it left";
}

TEST_F(Hovering, GivesNoBoxToALabelThatIsCutOff) {
  disc.Menu("MAINMENU", std::vector<std::string>(12, "Gra"));
  TestShell user(disc);
  user.Start();
  Hover(user, 100, 10 + 10 * 27);
  EXPECT_TRUE(BoxShown(user));
  Hover(user, 100, 10 + 11 * 27 + 5);
  EXPECT_FALSE(BoxShown(user)) << "the twelfth label ends below the menu area";
}

TEST_F(Hovering, StandsStillWhileAnotherProgramIsActive) {
  TestShell user(disc);
  user.Start();
  Hover(user, 100, 20);
  user.host.ActivateOther();
  Hover(user, 100, 64);
  EXPECT_EQ(user.Main().Line1(0).Y1(), 8);
  user.host.Activate(user.Main());
  user.Run(2000);
  EXPECT_EQ(user.Main().Line1(0).Y1(), 62);
}

TEST_F(Hovering, SweepsTheCrosshairToTheCursorBeforeAClickActs) {
  TestShell user(disc);
  user.Start();
  Hover(user, 95, 15);
  user.host.sleeps.clear();
  const Milliseconds begin = user.host.Now();
  std::vector<std::pair<double, double>> seen;
  for (int i = 1; i <= 9; ++i) {
    user.host.After(i, [&] { seen.emplace_back(user.Main().Line2(0).X1(), user.Main().Line2(1).Y1()); });
  }
  user.host.Click(InMenu(user, 95, 15));
  user.Run(1);
  EXPECT_EQ(seen, (std::vector<std::pair<double, double>>{
                      {10, 1}, {20, 3}, {30, 4}, {40, 6}, {50, 7}, {60, 9}, {70, 11}, {80, 12}, {90, 14}}));
  ASSERT_EQ(user.host.sleeps.size(), 11U) << "ten steps and the hold";
  EXPECT_EQ(user.host.sleeps.back().duration, 400);
  EXPECT_EQ(user.host.Now(), begin + 410);
  EXPECT_EQ(EndsOf(user.Main().Line2(0)), (Ends{95, 0, 95, 309}));
  EXPECT_EQ(EndsOf(user.Main().Line2(1)), (Ends{0, 15, 472, 15}));
  EXPECT_FALSE(user.Main().Line2(0).Visible);
  EXPECT_EQ(user.Main().lblPos1(0).ForeColor(), 0x00FFFF);
}

TEST_F(Hovering, TakesTheStepsOfTheClickThoughTheMouseMovesOn) {
  disc.Set("MENUITEM", "Line2Sleep", "20");
  TestShell user(disc);
  user.Start();
  for (const int to : {400, 5, 0, -60}) {
    SCOPED_TRACE(to);
    Hover(user, 95, 15);
    user.host.sleeps.clear();
    user.host.Click(InMenu(user, 95, 15 + 27 * (to == 5 || to == -60)));
    user.host.After(60, [&] { user.host.MoveMouse(InMenu(user, to, 15)); });
    user.Run(700);
    EXPECT_EQ(user.host.sleeps.size(), 11U);
    EXPECT_EQ(user.Main().Line2(0).X1(), to);
  }
}

TEST_F(Hovering, SurvivesAClickAtOrLeftOfTheMenusEdge) {
  disc.Set("MENUITEM", "LabelPosX", "-100");
  for (const int x : {0, -40}) {
    SCOPED_TRACE(x);
    TestShell user(disc);
    user.Start();
    Hover(user, x, 20);
    user.host.sleeps.clear();
    std::vector<double> rows;
    user.host.After(0, [&] { rows.push_back(user.Main().Line2(1).Y1); });
    user.Main().lblPos1_Click(0);
    EXPECT_EQ(rows, x == 0 ? std::vector<double>{0} : std::vector<double>{})
        << "no way to go, so from the top";
    EXPECT_EQ(user.host.sleeps.size(), x == 0 ? 2U : 1U);
    EXPECT_EQ(user.Main().Line2(0).X1(), x);
  }
}

TEST_F(Hovering, MeetsClicksInTheMiddleOfTheCrosshair) {
  disc.Menu("Gry", {"Szachy"});
  disc.Menu("Muzyka", {"Walce", "Polki"});
  TestShell user(disc);
  user.Start();
  Hover(user, 300, 20);
  user.host.Click(InMenu(user, 300, 20));
  user.host.After(5, [&] { user.host.Click(InMenu(user, 300, 47)); });
  user.Run(2000);
  EXPECT_EQ(user.Main().MenuLevel, 1) << "a second label is not taken";
  EXPECT_EQ(user.Main().lblPos1(0).Caption(), "Szachy");

  // The help page takes the list away under the crosshair of its second label.
  user.Click(user.Main().imgUp);
  Hover(user, 300, 47);
  user.host.Click(InMenu(user, 300, 47));
  user.host.After(5, [&] { user.host.Click(user.MiddleOf(user.Main().ButtonM(3))); });
  user.Run(2000);
  EXPECT_EQ(user.Main().MenuLevel, 0);
  EXPECT_TRUE(user.Main().imgPomoc.Visible);
  EXPECT_FALSE(user.Main().Line2(0).Visible);

  // The exit button in the middle of it ends the program.
  user.Click(user.Main().imgPomoc);
  Hover(user, 300, 20);
  user.host.Click(InMenu(user, 300, 20));
  user.host.After(5, [&] { user.host.Click(user.MiddleOf(user.Main().ButtonM(0))); });
  user.Run(10000);
  EXPECT_TRUE(user.ended);
}

}  // namespace
}  // namespace orvanta::test
