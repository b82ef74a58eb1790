// System: EPSG:3844, Stereo 70 on Pulkovo 1942(58). The deprecated 31700 has the same conversion and would only double
// every candidate. Bounds: the land with about 7 km around it; a stereographic system has no zone to be checked.
#include "siblings/vexo_xyz_dane_RO/dane.h"

#include <optional>

namespace vexo_xyz_dane_RO {

vexo_xyz_dane::MarketData tables() {
  return {
      .UKLADY = {{3844, std::nullopt}},
      .KOLEJNOSC = {3844},
      .NAZWY = {{3844, "Stereo 70 (EPSG:3844)"}},
      .KRAJ_LAT = {43.55, 48.35},
      .KRAJ_LON = {20.15, 29.8},
      .ZONE_EXEMPT = {},
      .EASTING_HALF = std::nullopt,
      .LON_HALF = std::nullopt,
  };
}

}  // namespace vexo_xyz_dane_RO
