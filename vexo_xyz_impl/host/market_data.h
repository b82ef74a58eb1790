// What a market's data module provides: the country's coordinate systems and the bounds that make positions plausible.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace vexo_xyz_impl::host {

/// A coordinate system as its market states it: the tag "stereo70", whose other items nobody reads, or any other
/// tag with exactly four numbers: `lon0` in degrees, `k0`, `FE` and `FN` in metres (Transverse Mercator on GRS80).
struct CoordinateSystem {
  std::string tag;
  std::vector<double> items;
};

/// The tables of one market. Codes are EPSG codes and opaque: compared, looked up and shown, nothing else.
struct MarketData {
  std::map<int, CoordinateSystem> UKLADY;  ///< every system the market knows
  std::vector<int> KOLEJNOSC;              ///< the systems that detection tries, in this order
  std::map<int, std::string> NAZWY;        ///< names for people
  std::pair<double, double> KRAJ_LAT;      ///< latitude range of the country, degrees
  std::pair<double, double> KRAJ_LON;      ///< longitude range of the country, degrees
  std::set<int> ZONE_EXEMPT;               ///< systems without zone-width checks
  std::optional<double> EASTING_HALF;      ///< largest |easting - FE| in metres; none: not checked
  std::optional<double> LON_HALF;          ///< largest |longitude - lon0| in degrees; none: not checked
};

}  // namespace vexo_xyz_impl::host
