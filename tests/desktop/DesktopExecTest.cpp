#include <gtest/gtest.h>

#include "platform/desktop/DesktopExec.h"

namespace orvanta {
namespace {

using Words = std::vector<std::string>;

const ExecFields Fields{
    .path = "/a b", .uri = "file:///a%20b", .icon = "ikona", .name = "Gra", .entry = "/apps/gra.desktop"};

TEST(DesktopExec, CodesBecomeWhatTheyStandFor) {
  EXPECT_EQ(ExpandExec({"app", "%f", "--url=%U", "%c", "%k"}, Fields),
            (Words{"app", "/a b", "--url=file:///a%20b", "Gra", "/apps/gra.desktop"}));
  EXPECT_EQ(ExpandExec({"app", "%i", "%u"}, Fields), (Words{"app", "--icon", "ikona", "file:///a%20b"}));
}

TEST(DesktopExec, CodesWithoutAValueLeaveNoEmptyArgument) {
  EXPECT_EQ(ExpandExec({"app", "%i", "%d", "", "%F"},
                       {.path = "/a", .uri = "", .icon = "", .name = "", .entry = ""}),
            (Words{"app", "", "/a"}));
}

TEST(DesktopExec, ALineThatAsksForNoFileGetsItAtItsEnd) {
  EXPECT_EQ(ExpandExec({"app", "100%%f", "%"}, Fields), (Words{"app", "100%f", "/a b"}));
  EXPECT_EQ(ExpandExec({}, Fields), Words{});
}

}  // namespace
}  // namespace orvanta
