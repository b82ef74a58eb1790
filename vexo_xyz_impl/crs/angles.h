// Degrees and radians, each a product with one constant, so that the last bit is the same everywhere.
#pragma once

#include <numbers>

namespace vexo_xyz_impl {

[[nodiscard]] constexpr double radians(double degrees) { return degrees * (std::numbers::pi / 180.0); }
[[nodiscard]] constexpr double degrees(double radians) { return radians * (180.0 / std::numbers::pi); }

}  // namespace vexo_xyz_impl
