// How near two sets of positions come to each other.
#pragma once

#include <optional>
#include <vector>

#include "console/drawing/column.h"
#include "console/drawing/drawing.h"

namespace console {

/// The least distance in plan between one of `points` and one of `places`, in their unit; empty where one of the sets
/// is. What is not finite counts for nothing.
[[nodiscard]] std::optional<double> least_distance(std::vector<PlanPoint> points, const Column<PlanPoint>& places);

}  // namespace console
