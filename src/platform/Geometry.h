#pragma once

#include <algorithm>

namespace orvanta {

/// Everything here is in whole pixels.
struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

inline Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
inline Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }

/// Width and height in pixels.
struct Size {
  int width = 0;
  int height = 0;
  bool Empty() const { return width <= 0 || height <= 0; }
  bool operator==(const Size&) const = default;
};

/// A rectangle that includes `left` and `top` and excludes `Right()` and `Bottom()`.
struct Rect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  int Right() const { return left + width; }
  int Bottom() const { return top + height; }
  bool Empty() const { return width <= 0 || height <= 0; }
  bool Contains(Point p) const { return p.x >= left && p.x < Right() && p.y >= top && p.y < Bottom(); }
  Rect Moved(Point by) const { return {left + by.x, top + by.y, width, height}; }
  bool operator==(const Rect&) const = default;
};

/// The part that both cover; empty if they do not overlap.
inline Rect Intersection(const Rect& a, const Rect& b) {
  const int left = std::max(a.left, b.left);
  const int top = std::max(a.top, b.top);
  return {left, top, std::max(0, std::min(a.Right(), b.Right()) - left),
          std::max(0, std::min(a.Bottom(), b.Bottom()) - top)};
}

/// The smallest rectangle that covers both; an empty one is ignored.
inline Rect Union(const Rect& a, const Rect& b) {
  if (a.Empty()) return b;
  if (b.Empty()) return a;
  const int left = std::min(a.left, b.left);
  const int top = std::min(a.top, b.top);
  return {left, top, std::max(a.Right(), b.Right()) - left, std::max(a.Bottom(), b.Bottom()) - top};
}

}  // namespace orvanta
