#include <gtest/gtest.h>

#include "platform/FontFamilies.h"

namespace orvanta {
namespace {

using Families = std::vector<std::string>;

TEST(FontFamilies, AFontOfTheOldDesktopHasAStandInAndAnyOtherLiberationSans) {
  EXPECT_EQ(FontFamilies("times new roman CE"),
            (Families{"times new roman CE", "Liberation Serif", "Liberation Sans"}));
  EXPECT_EQ(FontFamilies("Arial"), (Families{"Arial", "Liberation Sans"}));
  // An empty family would be taken for the first one of the system, which may hold symbols alone.
  EXPECT_EQ(FontFamilies("Szyld"), (Families{"Szyld", "Liberation Sans"}));
  EXPECT_EQ(FontFamilies(""), Families{"Liberation Sans"});
}

}  // namespace
}  // namespace orvanta
