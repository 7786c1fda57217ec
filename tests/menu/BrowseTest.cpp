#include <gtest/gtest.h>

#include "support/TestShell.h"

namespace orvanta::test {
namespace {

TEST(Browse, GoesDownTheTreeAndComesUpAgain) {
  TestDisc disc;
  disc.Menu("MAINMENU", {"Programy", "Muzyka"});
  disc.Menu("Programy", {"Żółw"});
  disc.Entry("Żółw", {{"Execute", "%:\\zolw.exe"}});
  TestShell user(disc);
  user.Start();
  ASSERT_FALSE(user.ended);
  EXPECT_EQ(user.Main().lblPos1.UBound(), 1);
  EXPECT_EQ(user.Main().lblPos1(0).Caption(), "Programy");
  EXPECT_DOUBLE_EQ(user.Main().lblPos1(0).Top, 10);

  user.Choose(0);
  EXPECT_EQ(user.Main().MenuLevel, 1);
  EXPECT_EQ(user.Main().lblPos1(0).Caption(), "Żółw");
  EXPECT_DOUBLE_EQ(user.Main().lblPos1(0).Top, 2 * 10 + 32);
  EXPECT_TRUE(user.Main().imgKreska.Visible);

  user.Choose(0);
  EXPECT_EQ(user.Main().MenuLevel, 2);
  EXPECT_FALSE(user.Main().picTlo.Visible);

  user.Click(user.Main().imgBack);
  user.Click(user.Main().imgUp);
  EXPECT_EQ(user.Main().MenuLevel, 0);
  EXPECT_EQ(user.Main().lblPos1(1).Caption(), "Muzyka");
}

using Names = std::vector<std::string>;

Names Captions(TestShell& user) {
  Names captions;
  user.Main().lblPos1.ForEach([&](const Label& label) {
    if (label.Visible) captions.push_back(label.Caption);
  });
  return captions;
}

TEST(Browse, ShowsARunUpToItsFirstGapFromBothFiles) {
  TestDisc disc;
  disc.Menu("MAINMENU", {"A", "B", "C", "", "E"});
  disc.File("Data/Param.ini", "[mainmenu]\r\nMENU4=D\r\n[B]\r\nMenu1=Z pliku\r\n");
  disc.Menu("C", {"Jedyna"});
  TestShell user(disc);
  user.Start();
  EXPECT_EQ(Captions(user), (Names{"A", "B", "C", "D", "E"}));
  user.Choose(1);
  EXPECT_EQ(Captions(user), Names{"Z pliku"});
  user.Click(user.Main().imgBack);
  user.Choose(2);
  EXPECT_EQ(user.Main().lblPos1.UBound(), 0);
  disc.File("Data/Param.ini", "");
  user.Click(user.Main().imgUp);
  EXPECT_EQ(Captions(user), (Names{"A", "B", "C"})) << "nothing of the disc is kept";

  TestDisc empty;
  TestShell alone(empty);
  alone.Start();
  EXPECT_EQ(Captions(alone), Names{""});
}

TEST(Browse, ComesBackLevelByLevelOrInOneStep) {
  TestDisc disc;
  disc.Menu("MAINMENU", {"1", "Muzyka"});
  for (int i = 1; i < 4; ++i) disc.Menu(std::to_string(i), {std::to_string(i + 1)});
  disc.Menu("3", {"Gra"});
  disc.Entry("Gra", {{"Execute", "gra.exe"}});
  TestShell user(disc);
  user.Start();
  MainForm& main = user.Main();
  EXPECT_FALSE(main.imgBack.Enabled || main.imgUp.Enabled || main.imgKreska.Visible);
  user.Click(main.imgBack);
  EXPECT_EQ(main.MenuLevel, 0);
  for (int i = 0; i < 4; ++i) user.Choose(0);
  EXPECT_EQ(main.MenuLevel, 4);
  EXPECT_FALSE(main.picTlo.Visible);
  EXPECT_EQ(main.lblBackTxt.Caption(), "Gra");
  user.Click(main.imgBack);
  EXPECT_EQ(Captions(user), Names{"Gra"});
  user.Click(main.ImgBack2);
  EXPECT_EQ(main.lblBackTxt2.Caption(), "2");
  user.Click(main.ButtonM(3));
  EXPECT_TRUE(main.imgPomoc.Visible);
  EXPECT_FALSE(main.imgKreska.Visible);
  user.Click(main.imgBack);
  EXPECT_EQ(main.MenuLevel, 1);
  EXPECT_TRUE(main.imgPomoc.Visible) << "the list is built under the page";
  user.Click(main.imgPomoc);
  EXPECT_EQ(Captions(user), Names{"2"});
  user.Choose(0);
  user.Click(main.imgUp2);
  EXPECT_EQ(Captions(user), (Names{"1", "Muzyka"}));
  EXPECT_EQ(main.lblBackTxt.Caption(), "2") << "the text of the place stays";
}

TEST(Browse, MarksAnInertLabelOnceAndRemembersItByItsPlace) {
  TestDisc disc;
  disc.Menu("MAINMENU", {"Puste", "Dalej", "Koniec"});
  disc.Menu("Dalej", {"Tu"});
  TestShell user(disc);
  user.Start();
  MainForm& main = user.Main();
  const auto sleeps = [&] { return user.host.sleeps.size(); };
  user.Choose(2);
  EXPECT_EQ(main.lblPos1(2).ForeColor(), 0x00FFFF);
  const std::size_t before = sleeps();
  user.Choose(2);
  EXPECT_EQ(sleeps(), before) << "no crosshair for the marked label";
  user.Choose(0);
  EXPECT_EQ(main.lblPos1(2).ForeColor(), 0xFFFFFF);
  EXPECT_GT(sleeps(), before);
  // The place outlives the list: the first label of the next one is taken for the marked one.
  user.Choose(2);
  main.MenuPath[1] = "Dalej";
  main.MenuLevel = 1;
  main.MenuInit("Dalej");
  user.Choose(0);
  EXPECT_EQ(main.lblPos1(0).ForeColor(), 0x00FFFF) << "a marked place that the list lacks does no harm";
  user.Click(main.imgBack);
  user.Choose(0);
  EXPECT_EQ(main.lblPos1(0).ForeColor(), 0xFFFFFF) << "ignored";
  user.Choose(1);
  EXPECT_EQ(main.MenuLevel, 1);
}

TEST(Browse, GoesDeeperThanTheDiscSaysAndRoundInCircles) {
  TestDisc disc;
  disc.Set("GLOBAL", "MenuLevels", "1");
  disc.Set("MENUITEM", "Line2Sleep", "0");
  disc.Menu("MAINMENU", {"Kółko"});
  disc.Menu("Kółko", {"MAINMENU"});
  TestShell user(disc);
  user.Start();
  for (int i = 1; i <= 6; ++i) {
    user.Choose(0);
    EXPECT_EQ(user.Main().MenuLevel, i);
  }
  EXPECT_EQ(Captions(user), Names{"Kółko"});
  for (int i = 6; i > 0; --i) user.Click(user.Main().imgBack);
  EXPECT_EQ(user.Main().MenuLevel, 0);
  EXPECT_EQ(user.Main().MenuPath[0], "MAINMENU");
}

TEST(Browse, HoldsAThousandAndOneItems) {
  TestDisc disc;
  std::string text = "[MAINMENU]\n";
  for (int i = 1; i <= 1100; ++i) text += "Menu" + std::to_string(i) + "=Gra\n";
  disc.File("Data/Param.ini", text);
  TestShell user(disc);
  user.Start();
  MainForm& main = user.Main();
  ASSERT_EQ(main.lblPos1.UBound(), 1000);
  EXPECT_EQ(main.lblPos1(1000).Top(), 10 + 1000 * 27);
  user.host.MoveMouse(user.MiddleOf(main.imgSuwak));
  user.host.Press();
  user.Run(1);
  user.host.MoveMouse({500, 2000});
  user.Run(1);
  EXPECT_EQ(main.lblPos1(1000).Top() + 26, 309);
  user.host.Release();
  user.Choose(1000);
  EXPECT_EQ(main.lblPos1(1000).ForeColor(), 0x00FFFF);
}

}  // namespace
}  // namespace orvanta::test
