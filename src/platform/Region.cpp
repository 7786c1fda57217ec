#include "platform/Region.h"

#include <cmath>

namespace orvanta {

Region Region::Polygon(std::span<const Point> outline) {
  Region region;
  if (outline.size() < 3) return region;
  const auto [lowest, highest] =
      std::minmax_element(outline.begin(), outline.end(), [](Point a, Point b) { return a.y < b.y; });
  for (int y = lowest->y; y < highest->y; ++y) {
    std::vector<int> crossings;
    for (std::size_t i = 0; i < outline.size(); ++i) {
      Point a = outline[i], b = outline[(i + 1) % outline.size()];
      if (a.y == b.y) continue;
      if (a.y > b.y) std::swap(a, b);
      if (y < a.y || y >= b.y) continue;
      const double x = a.x + static_cast<double>(b.x - a.x) * (y - a.y) / (b.y - a.y);
      crossings.push_back(static_cast<int>(std::ceil(x)));
    }
    std::sort(crossings.begin(), crossings.end());
    Row row{y, {}};
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
      row.runs.push_back({crossings[i], crossings[i + 1]});
    Tidy(row.runs);
    if (!row.runs.empty()) region.rows_.push_back(std::move(row));
  }
  return region;
}

Region Region::Rectangle(const Rect& area) {
  Region region;
  if (area.Empty()) return region;
  for (int y = area.top; y < area.Bottom(); ++y) region.rows_.push_back({y, {{area.left, area.Right()}}});
  return region;
}

Region Region::Ellipse(const Rect& box) {
  Region region;
  const double a = box.width / 2.0, b = box.height / 2.0;
  for (int y = 0; y < box.height; ++y) {
    const double dy = (y - b) / b;
    const double half = a * std::sqrt(std::max(0.0, 1 - dy * dy));
    const Run run{box.left + static_cast<int>(std::ceil(a - half)),
                  box.left + static_cast<int>(std::ceil(a + half))};
    if (run.left < run.right) region.rows_.push_back({box.top + y, {run}});
  }
  return region;
}

Region Region::United(const Region& other) const {
  Region result;
  auto a = rows_.begin(), b = other.rows_.begin();
  while (a != rows_.end() || b != other.rows_.end()) {
    if (b == other.rows_.end() || (a != rows_.end() && a->y < b->y)) {
      result.rows_.push_back(*a++);
    } else if (a == rows_.end() || b->y < a->y) {
      result.rows_.push_back(*b++);
    } else {
      Row row = *a++;
      row.runs.insert(row.runs.end(), b->runs.begin(), b->runs.end());
      ++b;
      Tidy(row.runs);
      result.rows_.push_back(std::move(row));
    }
  }
  return result;
}

bool Region::Contains(Point p) const {
  const auto row =
      std::lower_bound(rows_.begin(), rows_.end(), p.y, [](const Row& r, int y) { return r.y < y; });
  if (row == rows_.end() || row->y != p.y) return false;
  return std::any_of(row->runs.begin(), row->runs.end(),
                     [&](Run r) { return p.x >= r.left && p.x < r.right; });
}

int Region::PixelCount() const {
  int count = 0;
  for (const Rect& r : Rects()) count += r.width * r.height;
  return count;
}

std::vector<Rect> Region::Rects() const {
  std::vector<Rect> rects;
  for (const Row& row : rows_) {
    for (const Run& run : row.runs) rects.push_back({run.left, row.y, run.right - run.left, 1});
  }
  return rects;
}

void Region::Tidy(std::vector<Run>& runs) {
  std::erase_if(runs, [](Run r) { return r.left >= r.right; });
  std::sort(runs.begin(), runs.end(), [](Run a, Run b) { return a.left < b.left; });
  std::vector<Run> joined;
  for (const Run& run : runs) {
    if (!joined.empty() && run.left <= joined.back().right) {
      joined.back().right = std::max(joined.back().right, run.right);
    } else {
      joined.push_back(run);
    }
  }
  runs = std::move(joined);
}

}  // namespace orvanta
