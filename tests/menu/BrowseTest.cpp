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

}  // namespace
}  // namespace orvanta::test
