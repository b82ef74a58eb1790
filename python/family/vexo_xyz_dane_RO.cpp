// vexo_xyz_dane_RO for scripts: the coordinate systems and bounds of the market RO.
#include "python/family/market_tables.h"
#include "siblings/vexo_xyz_dane_RO/dane.h"

PYBIND11_MODULE(vexo_xyz_dane_RO, m) {
  m.doc() = "Coordinate systems and bounds of the market RO.";
  family::add_tables(m, vexo_xyz_dane_RO::Tables().tables());
}
