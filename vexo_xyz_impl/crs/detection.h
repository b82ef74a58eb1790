// Which of the market's coordinate systems, in which axis order, make the points fall inside the country.
//
// A vote over a sample; it never changes the points. What to do with the verdict is the command's business.
#pragma once

#include <cstddef>
#include <span>
#include <string>
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

/// Whether (easting, northing) in metres is plausible in the system: inside the country's box, bounds included, and
/// within the zone's half-widths where the market checks them. Fails with KeyError or UnpackError for a market whose
/// tables are wrong; a conversion that fails for the numbers is merely not plausible.
[[nodiscard]] bool _sensowny(double E, double N, int srid);

/// The system's name for people, "EPSG:" and the code when the market names none.
[[nodiscard]] std::string _uklad_nazwa(int srid);

/// The plausible readings, by falling share; among equals in the market's order, unexchanged first.
[[nodiscard]] std::vector<Candidate> _wykryj_uklad(std::span<const std::pair<double, double>> pary);

}  // namespace vexo_xyz_impl
