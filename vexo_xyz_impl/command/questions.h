// The steps of the import that may need the user: the path, the column layout, the axis order.
//
// Each says on the command line what it found and asks only what the data leave open.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/points.h"

namespace vexo_xyz_impl {

/// A path as typed or pasted, without the blanks and double quotes around it.
[[nodiscard]] std::string_view clean_path(std::string_view typed);

/// The path from the file dialog or typed; empty, with the user told, when there is none.
[[nodiscard]] std::optional<std::string> ask_path();

/// Lets the user settle a layout that the content leaves open. False, with the user told, when the user cancelled.
/// Without a row of data neither answer could make a point: then nothing is asked and the layout stays open.
[[nodiscard]] bool ask_layout(LayoutVerdict& verdict);

/// Whether X and Y are to be exchanged: known from the only plausible reading of the points, else answered by the
/// user; false when nothing is recognised or the user cancelled. There must be a point.
[[nodiscard]] bool settle_axes(std::span<const PointRecord> punkty);

}  // namespace vexo_xyz_impl
