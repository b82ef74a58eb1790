// Points and their labels into model space.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "vexo_xyz_impl/host/database.h"
#include "vexo_xyz_impl/table/points.h"

namespace vexo_xyz_impl {

/// What an insertion left in the drawing; what the host refused is in neither list of ids.
struct Inserted {
  std::unique_ptr<host::GcDbObjectIdArray> oidy;  ///< points and labels, a point before its label
  std::vector<host::GcDbObjectId> oidy_punktow;   ///< points only
  std::vector<std::size_t> refused;               ///< points that the host refused, by their index
  std::size_t placed = 0;                         ///< points tried
};

/// Label height in metres: a round value near 2 % of the larger extent of the points. There must be a point.
/// Fails with OverflowError when a coordinate is infinite.
[[nodiscard]] double label_height(std::span<const PointRecord> punkty);

/// Appends a point and a label of height `txtH` for each record, in order, and closes each as it is appended.
[[nodiscard]] Inserted insert_points(host::GcDbBlockTableRecord& ms, std::span<const PointRecord> punkty, double txtH);

}  // namespace vexo_xyz_impl
