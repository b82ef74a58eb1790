// vexo_xyz_dane_DE for scripts: the coordinate systems and bounds of the market DE.
#include "python/family/market_tables.h"
#include "siblings/vexo_xyz_dane_DE/dane.h"

PYBIND11_MODULE(vexo_xyz_dane_DE, m) {
  m.doc() = "Coordinate systems and bounds of the market DE.";
  family::add_tables(m, vexo_xyz_dane_DE::Tables().tables());
}
