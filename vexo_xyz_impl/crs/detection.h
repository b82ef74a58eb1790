// Which of the market's coordinate systems, in which axis order, make the points fall inside the country.
//
// A vote over a sample; it never changes the points. What to do with the verdict is the command's business.
#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace vexo_xyz_impl {

/// Pairs that detection looks at, from the beginning of the file.
inline constexpr std::size_t kDetectionSample = 200;

/// A plausible reading of the coordinates.
struct Candidate {
  int srid;     ///< EPSG code
  bool swap;    ///< pairs are (northing, easting) rather than (easting, northing)
  double frac;  ///< share of plausible sample pairs, 0.9 to 1
};

/// A coordinate pair in the order of its columns, metres.
using Pair = std::pair<double, double>;

/// Whether (easting, northing) in metres is plausible in the system: inside the country's box, bounds included, and
/// within the zone's half-widths where the market checks them. A conversion that fails with ValueError, OverflowError
/// or ZeroDivisionError is merely not plausible; any other failure, of the market's tables too, is passed on.
[[nodiscard]] bool _sensowny(double E, double N, int srid);

/// The plausible readings, by falling share; among equals in the market's order, unexchanged first.
[[nodiscard]] std::vector<Candidate> _wykryj_uklad(std::span<const Pair> pary);

}  // namespace vexo_xyz_impl
