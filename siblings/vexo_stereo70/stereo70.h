// The Romanian projection Stereo 70: oblique (double) stereographic on the Krassowsky 1940 ellipsoid.
//
// Formulas: EPSG guidance note 7-2, method 9809, with the latitude found by Newton's iteration on the isometric
// latitude. Positions are on Pulkovo 1942(58); no datum shift is applied (it would be 118 to 130 m). Agrees with
// reference values within 1e-12 degrees over the country.
#pragma once

#include <utility>

#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_stereo70 {

class Projection final : public vexo_xyz_impl::host::Stereo70 {
 public:
  /// Easting and northing in metres to (latitude, longitude) in radians.
  [[nodiscard]] std::pair<double, double> stereo70_do_geo(double E, double N) const override;
};

}  // namespace vexo_stereo70
