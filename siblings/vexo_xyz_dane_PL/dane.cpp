// Systems: EPSG v10; names and zone numbers of the ordinance of 15 October 2012 (Dz.U. 2012 poz. 1247). PL-UTM is left
// out: its zones give equal numbers six degrees apart, and their width would put zone 5 of PL-2000 in doubt.
//
// Bounds: the land with 4 to 6 km around it. LON_HALF 2 degrees, for zones follow county borders past their 1.5;
// EASTING_HALF 150 km, the width of 2 degrees at the southern border, which tells zone 5 from its exchanged reading
// north of 50.93 degrees. PL-1992 covers the country in one zone and is exempt.
#include "siblings/vexo_xyz_dane_PL/dane.h"

namespace vexo_xyz_dane_PL {

using Zone = vexo_xyz_impl::host::ZoneParameters;

vexo_xyz_dane::MarketData tables() {
  return {
      .UKLADY =
          {
              {2176, Zone{15.0, 0.999923, 5500000.0, 0.0}},
              {2177, Zone{18.0, 0.999923, 6500000.0, 0.0}},
              {2178, Zone{21.0, 0.999923, 7500000.0, 0.0}},
              {2179, Zone{24.0, 0.999923, 8500000.0, 0.0}},
              {2180, Zone{19.0, 0.9993, 500000.0, -5300000.0}},
          },
      .KOLEJNOSC = {2176, 2177, 2178, 2179, 2180},
      .NAZWY =
          {
              {2176, "PL-2000 strefa 5 (EPSG:2176)"},
              {2177, "PL-2000 strefa 6 (EPSG:2177)"},
              {2178, "PL-2000 strefa 7 (EPSG:2178)"},
              {2179, "PL-2000 strefa 8 (EPSG:2179)"},
              {2180, "PL-1992 (EPSG:2180)"},
          },
      .KRAJ_LAT = {48.95, 54.9},
      .KRAJ_LON = {14.05, 24.2},
      .ZONE_EXEMPT = {2180},
      .EASTING_HALF = 150000.0,
      .LON_HALF = 2.0,
  };
}

}  // namespace vexo_xyz_dane_PL
