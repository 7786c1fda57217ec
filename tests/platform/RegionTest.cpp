#include <gtest/gtest.h>

#include <array>

#include "platform/Region.h"

namespace orvanta {
namespace {

TEST(Region, APolygonHoldsItsLeftAndUpperEdges) {
  const std::array<Point, 4> square{{{2, 1}, {5, 1}, {5, 4}, {2, 4}}};
  const Region region = Region::Polygon(square);
  EXPECT_EQ(region.PixelCount(), 9);
  EXPECT_TRUE(region.Contains({2, 1}));
  EXPECT_FALSE(region.Contains({5, 1}));
  EXPECT_FALSE(region.Contains({2, 4}));
  EXPECT_FALSE(region.Contains({1, 2}));

  const std::array<Point, 3> triangle{{{0, 0}, {4, 0}, {0, 4}}};
  EXPECT_EQ(Region::Polygon(triangle).PixelCount(), 4 + 3 + 2 + 1);
  EXPECT_EQ(Region::Polygon(std::span(triangle).first(2)).PixelCount(), 0);
}

TEST(Region, WhatAnOutlineGoesRoundTwiceIsOutside) {
  const std::array<Point, 8> twice{{{0, 0}, {9, 0}, {9, 9}, {0, 9}, {3, 3}, {6, 3}, {6, 6}, {3, 6}}};
  EXPECT_FALSE(Region::Polygon(twice).Contains({5, 4}));
  EXPECT_TRUE(Region::Polygon(twice).Contains({7, 4}));
}

TEST(Region, AUnionCountsAnOverlapOnce) {
  const Region both = Region::Rectangle({0, 0, 4, 4}).United(Region::Rectangle({2, 2, 4, 4}));
  EXPECT_EQ(both.PixelCount(), 16 + 16 - 4);
  EXPECT_EQ(both.Rects().size(), 6U) << "one a row";
  EXPECT_EQ(both.United(Region()).PixelCount(), 28);
  EXPECT_EQ(Region::Rectangle({5, 5, 0, 3}).PixelCount(), 0);
}

TEST(Region, AnEllipseHoldsItsPixelsByTheCornerOfAPolygon) {
  const Region ellipse = Region::Ellipse({10, 20, 49, 59});
  EXPECT_EQ(ellipse.PixelCount(), 2260);
  EXPECT_TRUE(ellipse.Contains({34, 21}));
  EXPECT_FALSE(ellipse.Contains({34, 20})) << "its top touches no corner";
  EXPECT_TRUE(ellipse.Contains({11, 49}));
  EXPECT_FALSE(ellipse.Contains({59, 49}));
}

}  // namespace
}  // namespace orvanta
