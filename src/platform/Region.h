#pragma once

#include <span>
#include <vector>

#include "platform/Geometry.h"

namespace orvanta {

/// A set of pixels, as runs of whole rows.
class Region {
 public:
  Region() = default;

  /// The pixels inside a closed outline, by the alternate fill mode: a pixel belongs to it when its corner
  /// (x, y) lies inside; a left or upper edge counts as inside, a right or lower one does not.
  static Region Polygon(std::span<const Point> outline);
  static Region Rectangle(const Rect& area);
  /// The pixels inside the ellipse that `box` holds, by the same corner as for a polygon.
  static Region Ellipse(const Rect& box);

  Region United(const Region& other) const;
  bool Contains(Point p) const;
  int PixelCount() const;

  /// The pixels as rectangles that do not overlap, from top to bottom.
  std::vector<Rect> Rects() const;

 private:
  struct Run {
    int left, right;  // right is excluded
  };
  struct Row {
    int y;
    std::vector<Run> runs;  // apart from each other, left to right
  };
  static void Tidy(std::vector<Run>& runs);

  std::vector<Row> rows_;  // top to bottom, none without a run
};

}  // namespace orvanta
