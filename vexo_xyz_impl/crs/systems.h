// Looking into the market's coordinate-system records.
#pragma once

#include <string_view>

#include "vexo_xyz_impl/host/market_data.h"

namespace vexo_xyz_impl {

/// Tag of the Romanian stereographic system; nothing else of its record is read.
inline constexpr std::string_view kStereo70Tag = "stereo70";

/// A Transverse Mercator zone on GRS80.
struct ZoneParameters {
  double lon0;  ///< central meridian, degrees
  double k0;    ///< scale on the central meridian
  double FE;    ///< false easting, metres
  double FN;    ///< false northing, metres
};

/// The bound market's record of `srid`; fails with KeyError when it has none.
[[nodiscard]] const host::CoordinateSystem& system_record(int srid);

/// The record's parameters; fails with UnpackError unless it is a tag and four numbers.
[[nodiscard]] ZoneParameters unpack_zone(const host::CoordinateSystem& record);

/// Degrees to radians and back, each a product with one constant, so that the last bit is the same everywhere.
[[nodiscard]] double radians(double degrees);
[[nodiscard]] double degrees(double radians);

}  // namespace vexo_xyz_impl
