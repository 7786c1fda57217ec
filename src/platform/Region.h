#pragma once

#include <span>
#include <vector>

#include "platform/Geometry.h"

namespace orvanta {

/// A set of pixels, stored as runs in rows.
class Region {
 public:
  Region() = default;

  /// The pixels inside a closed outline, by the alternate fill mode: a pixel belongs to it if its corner (x,
  /// y) lies inside. Left and upper edges count as inside, right and lower ones do not.
  static Region Polygon(std::span<const Point> outline);
  static Region Rectangle(const Rect& area);
  /// The pixels inside the ellipse that fits into `box`, decided by the same corner as for a polygon.
  static Region Ellipse(const Rect& box);

  Region United(const Region& other) const;
  bool Contains(Point p) const;
  int PixelCount() const;

  /// The pixels as rectangles that do not overlap, from top to bottom.
  std::vector<Rect> Rects() const;

 private:
  struct Run {
    int left, right;  // right is exclusive
  };
  struct Row {
    int y;
    std::vector<Run> runs;  // not touching each other, from left to right
  };
  static void Tidy(std::vector<Run>& runs);

  std::vector<Row> rows_;  // from top to bottom, none of them empty
};

}  // namespace orvanta
