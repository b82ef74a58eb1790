// Where a position is, in words: how far and in which direction from the nearest town or village.
//
// The places are those of the sibling `vexo_miejsca`, a help that an import never depends on.
#pragma once

#include <string>

namespace vexo_xyz_impl {

/// A line to print for a position in degrees. Empty when no place is near, and when the sibling, its answer or the
/// catalogue's words are missing or fail in any ordinary way.
[[nodiscard]] std::string place_line(double lat, double lon);

}  // namespace vexo_xyz_impl
