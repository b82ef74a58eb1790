// Spans of values, for doubts about where points lie.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "vexo_xyz_impl/table/points.h"

namespace console {

struct Range {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void take(double value) {
    low = std::min(low, value);
    high = std::max(high, value);
  }
  [[nodiscard]] double span() const { return high - low; }
  [[nodiscard]] bool within(double from, double to) const { return low >= from && high <= to; }
  /// How wide it is beside how far from 0 it lies: of a place's degrees little, of metres around an origin 1 and more.
  [[nodiscard]] double spread() const { return span() / std::max(std::abs(low), std::abs(high)); }
};

[[nodiscard]] inline bool is_finite(const vexo_xyz_impl::PointRecord& point) {
  return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

}  // namespace console
