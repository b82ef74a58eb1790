#include "console/preview/marks.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace console {
namespace {

// Lets one point through for each cell of the page, as long as there are more points than need that.
class Thinning {
 public:
  Thinning(const Page& page, bool is_needed)
      : columns_(static_cast<std::size_t>(page.width / kCell) + 1),
        taken_(is_needed ? columns_ * (static_cast<std::size_t>(page.height / kCell) + 1) : 0) {}

  bool lets_through(double x, double y) {
    if (taken_.empty()) return true;
    auto cell = taken_[static_cast<std::size_t>(y / kCell) * columns_ + static_cast<std::size_t>(x / kCell)];
    if (cell) return false;
    cell = true;
    return true;
  }

 private:
  static constexpr double kCell = 4.0;  // less than a dot

  std::size_t columns_;
  std::vector<bool> taken_;
};

// Where the way from the frame's middle to a place outside leaves the frame, a little before.
Mark at_the_edge(const PicturePoint& point, const Page& page) {
  constexpr double kInside = 25.0;
  const double x = (page.frame.left + page.frame.right) / 2;
  const double y = (page.frame.top + page.frame.bottom) / 2;
  const double across = page.across(point.x) - x;
  const double down = page.down(point.y) - y;
  const double part = std::min((page.frame.width() / 2 - kInside) / std::max(std::abs(across), 1e-9),
                               (page.frame.height() / 2 - kInside) / std::max(std::abs(down), 1e-9));
  return {&point, x + across * part, y + down * part};
}

}  // namespace

Marks marks_of(const Picture& picture, const Page& page) {
  constexpr std::size_t kAllDrawn = 20000;
  constexpr double kArrow = 40.0;  // room that one takes along the edge
  Thinning usual(page, picture.points.size() > kAllDrawn);
  Thinning suspect(page, picture.points.size() > kAllDrawn);
  std::set<std::pair<long, long>> arrows;
  Marks marks;
  for (const PicturePoint& point : picture.points) {
    const double x = page.across(point.x);
    const double y = page.down(point.y);
    if (!page.frame.holds(x, y)) {
      ++marks.outside_count;
      const Mark mark = at_the_edge(point, page);
      const bool is_free = arrows.emplace(std::lround(mark.x / kArrow), std::lround(mark.y / kArrow)).second;
      if (is_free) marks.outside.push_back(mark);
      continue;
    }
    ++marks.inside_count;
    const bool is_suspect = point.suspicion != Suspicion::none;
    if (!(is_suspect ? suspect : usual).lets_through(x, y)) continue;
    (is_suspect ? marks.suspect : marks.usual).push_back({&point, x, y});
  }
  return marks;
}

}  // namespace console
