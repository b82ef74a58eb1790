// Grid to geographic coordinates: Krüger's n-series for Transverse Mercator on GRS80.
//
// The series is that of Krüger (1912) as published in the third flattening n by Karney, "Transverse Mercator with an
// accuracy of a few nanometers", J. Geod. 85 (2011), equations 12, 14 and 36, here with five harmonics and truncated
// after n^5; only the rectifying radius carries n^6. Worst distance from the exact projection: 15 nm up to 40 degrees
// from the central meridian (12 nm of it the missing n^6 terms of delta, at any distance), 9 um at 60, 1 mm at 70.
//
// Metres and radians; eastings grow to the east, northings to the north, latitude north and longitude east are
// positive. Which zone numbers belong to is not asked here (systems.h).
#pragma once

#include <array>
#include <utility>

#include "vexo_xyz_impl/host/values.h"

namespace vexo_xyz_impl {

inline constexpr double _A_GRS80 = 6378137.0;             ///< semi-major axis, metres
inline constexpr double _F_GRS80 = 0.003352810681182319;  ///< flattening, 1 / 298.257222101

/// Rectifying radius in metres and the coefficients beta (grid to conformal sphere) and delta (conformal to geodetic
/// latitude) for the harmonics 1 to 5.
struct SeriesCoefficients {
  double A;
  std::array<double, 5> beta;
  std::array<double, 5> delta;
};

/// Computes the coefficients of GRS80, to the last bit the same everywhere.
[[nodiscard]] SeriesCoefficients _wspolczynniki();

extern const double _A_K;                   ///< A of `_wspolczynniki()`, computed once at load
extern const std::array<double, 5> _BETA;   ///< beta of `_wspolczynniki()`
extern const std::array<double, 5> _DELTA;  ///< delta of `_wspolczynniki()`

/// Easting and northing in metres to (latitude, longitude) in radians in a zone; longitude is not normalised. Fails
/// with ZeroDivisionError for k0 = 0, ValueError for the sine of an infinity and OverflowError for a hyperbolic
/// function beyond double.
[[nodiscard]] std::pair<double, double> inverse(const host::ZoneParameters& zone, double E, double N);

}  // namespace vexo_xyz_impl
