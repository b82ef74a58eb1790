// The extent of a column of numbers, with the rule for what is no number.
#pragma once

#include <functional>
#include <ranges>

namespace vexo_xyz_impl {

/// max - min of the projected values by successive comparison from the first one: a nan compares with nothing, so it
/// spoils the span only when it comes first. There must be a value.
template <std::ranges::input_range Values, class Projection = std::identity>
[[nodiscard]] double span_of(const Values& values, Projection projection = {}) {
  double largest = std::invoke(projection, *std::ranges::begin(values));
  double smallest = largest;
  for (const auto& each : values) {
    const double value = std::invoke(projection, each);
    if (value > largest) largest = value;
    if (value < smallest) smallest = value;
  }
  return largest - smallest;
}

}  // namespace vexo_xyz_impl
