// How often numbers of points are repeated.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string_view>

#include "vexo_xyz_impl/table/points.h"

namespace vexo_xyz_impl {

/// The standard library's hash of a text.
[[nodiscard]] inline std::size_t hash_of_text(std::string_view text) { return std::hash<std::string_view>()(text); }

/// Points less distinct numbers. No choice of numbers and no `hash` of them makes it take more than n log n steps.
[[nodiscard]] std::size_t repeated_numbers(std::span<const PointRecord> punkty,
                                           std::size_t (*hash)(std::string_view) = hash_of_text);

}  // namespace vexo_xyz_impl
