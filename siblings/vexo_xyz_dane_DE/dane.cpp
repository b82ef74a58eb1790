// Systems: EPSG v10, ETRS89 / UTM with and without the zone number before the easting. The northing-first codes are the
// same records with their columns exchanged, which detection finds by itself.
//
// Bounds: LON_HALF 5.5 degrees and EASTING_HALF 400 km, for whole states use one zone (Bavaria reaches 4.84 degrees
// from its meridian). Numbers of zones 32 and 33 without the prefix coincide six degrees apart: only the country's box
// tells them apart, and not everywhere.
#include "siblings/vexo_xyz_dane_DE/dane.h"

namespace vexo_xyz_dane_DE {

using Zone = vexo_xyz_impl::host::ZoneParameters;

vexo_xyz_dane::MarketData tables() {
  return {
      .UKLADY =
          {
              {25832, Zone{9.0, 0.9996, 500000.0, 0.0}},
              {25833, Zone{15.0, 0.9996, 500000.0, 0.0}},
              {4647, Zone{9.0, 0.9996, 32500000.0, 0.0}},
              {5650, Zone{15.0, 0.9996, 33500000.0, 0.0}},
          },
      .KOLEJNOSC = {25832, 25833, 4647, 5650},
      .NAZWY =
          {
              {25832, "ETRS89 / UTM Zone 32N (EPSG:25832)"},
              {25833, "ETRS89 / UTM Zone 33N (EPSG:25833)"},
              {4647, "ETRS89 / UTM Zone 32N mit Zonenkennung (EPSG:4647)"},
              {5650, "ETRS89 / UTM Zone 33N mit Zonenkennung (EPSG:5650)"},
          },
      .KRAJ_LAT = {47.2, 55.1},
      .KRAJ_LON = {5.8, 15.1},
      .ZONE_EXEMPT = {},
      .EASTING_HALF = 400000.0,
      .LON_HALF = 5.5,
  };
}

}  // namespace vexo_xyz_dane_DE
