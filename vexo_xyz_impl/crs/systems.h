// The market's coordinate systems: positions in them, and their names.
#pragma once

#include <string>
#include <utility>

namespace vexo_xyz_impl {

/// Easting and northing in metres to (latitude, longitude) in radians in the market's system `srid`; longitude is not
/// normalised. Transverse Mercator zones are converted here (transverse_mercator.h, whose failures are passed on), the
/// Romanian stereographic system by the sibling `vexo_stereo70`. Fails with KeyError for an unknown system and
/// ValueError for a record that is none.
[[nodiscard]] std::pair<double, double> _do_geo(double E, double N, int srid);

/// The system's name for people, "EPSG:" and the code when the market names none.
[[nodiscard]] std::string _uklad_nazwa(int srid);

}  // namespace vexo_xyz_impl
