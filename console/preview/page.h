// Where a picture's points stand on a page of A4: its format, the frame around the bulk of them, a round scale.
//
// A few points far from all others do not count for the frame; else they would squeeze the rest into a dot.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "console/preview/picture.h"

namespace console {

/// Lengths on the page are tenths of millimetres, from its upper left corner.
struct Box {
  double left = 0.0;
  double top = 0.0;
  double right = 0.0;
  double bottom = 0.0;

  [[nodiscard]] double width() const { return right - left; }
  [[nodiscard]] double height() const { return bottom - top; }
  [[nodiscard]] bool holds(double x, double y) const { return x >= left && x <= right && y >= top && y <= bottom; }
};

struct Page {
  double width = 0.0;
  double height = 0.0;
  Box frame;
  double scale = 1.0;     ///< tenths of millimetres on the page for a metre
  double middle_x = 0.0;  ///< what stands in the middle of the frame, metres
  double middle_y = 0.0;

  [[nodiscard]] double across(double x) const { return (frame.left + frame.right) / 2 + (x - middle_x) * scale; }
  [[nodiscard]] double down(double y) const { return (frame.top + frame.bottom) / 2 - (y - middle_y) * scale; }
  /// N of the scale 1:N.
  [[nodiscard]] double denominator() const;
};

/// There must be a point.
[[nodiscard]] Page page_for(std::span<const PicturePoint> points);

/// The round numbers of a step that suits `wanted`: 1, 2 or 5 with noughts.
[[nodiscard]] double round_step(double wanted);

/// Multiples of `step` from `low` to `high`, a hundred at most.
[[nodiscard]] std::vector<double> multiples(double step, double low, double high);

}  // namespace console
