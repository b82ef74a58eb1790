// vexo_xyz_dane_PL for scripts: the coordinate systems and bounds of the market PL.
#include "python/family/market_tables.h"
#include "siblings/vexo_xyz_dane_PL/dane.h"

PYBIND11_MODULE(vexo_xyz_dane_PL, m) {
  m.doc() = "Coordinate systems and bounds of the market PL.";
  family::add_tables(m, vexo_xyz_dane_PL::Tables().tables());
}
