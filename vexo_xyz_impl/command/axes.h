// Which of the file's two coordinates is the easting: told, declared by the file, known from the only plausible
// reading of the points, or asked.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "vexo_xyz_impl/crs/detection.h"
#include "vexo_xyz_impl/host/command_line.h"
#include "vexo_xyz_impl/table/points.h"

namespace vexo_xyz_impl {

/// What settled the order of the axes.
enum class AxesBy {
  found,            ///< the only plausible reading
  none_recognised,  ///< no reading is plausible: as they stand
  answered,         ///< the user's answer, Enter included
  unconfirmed,      ///< the question was cancelled: as they stand
  told,             ///< the user's word beforehand
  declared,         ///< the file's first line
};

struct SettledAxes {
  bool swap = false;  ///< X and Y are to be exchanged
  AxesBy how = AxesBy::none_recognised;
  std::vector<Candidate> candidates;  ///< the plausible readings, whatever came of them
};

/// Settles the order of the axes, with the user told how. What the user told beforehand (`host::Foreknowledge`) counts
/// for more than what the file declares, and that for more than the numbers. There must be a point.
[[nodiscard]] SettledAxes settle_axes(std::span<const PointRecord> punkty,
                                      std::optional<host::AxisOrder> declared = std::nullopt);

}  // namespace vexo_xyz_impl
