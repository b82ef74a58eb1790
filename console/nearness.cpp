#include "console/nearness.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace console {
namespace {

struct PlanBox {
  PlanPoint low;
  PlanPoint high;
};

double squared(double value) { return value * value; }

double squared_to(const PlanBox& box, const PlanPoint& from) {
  return squared(std::max({box.low.x - from.x, 0.0, from.x - box.high.x})) +
         squared(std::max({box.low.y - from.y, 0.0, from.y - box.high.y}));
}

// The points halved again and again across the longer side of what is left, each half with its box. Whatever is no
// nearer than what was found already is passed over as a whole.
class Halves {
 public:
  explicit Halves(std::span<PlanPoint> points) : points_(points) { split(points); }

  void search(const PlanPoint& from, double& best) const { search(0, points_, from, best); }

 private:
  static constexpr std::size_t kFew = 8;

  struct Node {
    PlanBox box;
    std::size_t other = 0;  // the node of the second half; the first one's is the next
  };

  static PlanBox box_of(std::span<const PlanPoint> points) {
    PlanBox box{points.front(), points.front()};
    for (const PlanPoint& one : points) {
      box.low = {std::min(box.low.x, one.x), std::min(box.low.y, one.y)};
      box.high = {std::max(box.high.x, one.x), std::max(box.high.y, one.y)};
    }
    return box;
  }

  void split(std::span<PlanPoint> points) {
    const std::size_t node = nodes_.size();
    const PlanBox box = box_of(points);
    nodes_.push_back({box});
    if (points.size() <= kFew) return;
    const bool is_wide = box.high.x - box.low.x > box.high.y - box.low.y;
    const auto middle = points.begin() + static_cast<std::ptrdiff_t>(points.size() / 2);
    std::nth_element(points.begin(), middle, points.end(), [is_wide](const PlanPoint& one, const PlanPoint& other) {
      return is_wide ? one.x < other.x : one.y < other.y;
    });
    split(points.first(points.size() / 2));
    nodes_[node].other = nodes_.size();
    split(points.subspan(points.size() / 2));
  }

  void search(std::size_t node, std::span<const PlanPoint> points, const PlanPoint& from, double& best) const {
    if (squared_to(nodes_[node].box, from) >= best) return;
    if (points.size() <= kFew) {
      for (const PlanPoint& one : points) best = std::min(best, squared(one.x - from.x) + squared(one.y - from.y));
      return;
    }
    const std::size_t second = nodes_[node].other;
    const std::size_t half = points.size() / 2;
    if (squared_to(nodes_[second].box, from) < squared_to(nodes_[node + 1].box, from)) {
      search(second, points.subspan(half), from, best);
      search(node + 1, points.first(half), from, best);
    } else {
      search(node + 1, points.first(half), from, best);
      search(second, points.subspan(half), from, best);
    }
  }

  std::span<const PlanPoint> points_;
  std::vector<Node> nodes_;
};

}  // namespace

std::optional<double> least_distance(std::vector<PlanPoint> points, const Column<PlanPoint>& places) {
  const auto is_nowhere = [](const PlanPoint& one) { return !std::isfinite(one.x) || !std::isfinite(one.y); };
  points.erase(std::remove_if(points.begin(), points.end(), is_nowhere), points.end());
  if (points.empty()) return std::nullopt;
  const Halves halves(points);
  double best = std::numeric_limits<double>::infinity();
  for (std::size_t at = 0; at < places.size(); ++at) halves.search(places[at], best);
  if (!std::isfinite(best)) return std::nullopt;
  return std::sqrt(best);
}

}  // namespace console
