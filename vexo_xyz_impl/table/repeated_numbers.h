// How often numbers of points are repeated.
#pragma once

#include <cstddef>
#include <span>

#include "vexo_xyz_impl/table/points.h"

namespace vexo_xyz_impl {

/// Points less distinct numbers. No choice of numbers makes it take more than n log n steps.
[[nodiscard]] std::size_t repeated_numbers(std::span<const PointRecord> punkty);

}  // namespace vexo_xyz_impl
