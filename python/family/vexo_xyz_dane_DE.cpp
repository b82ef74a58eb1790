// vexo_xyz_dane_DE for scripts: the coordinate systems and bounds of the market DE.
#include "python/family/market_tables.h"
#include "python/module_start.h"
#include "siblings/vexo_xyz_dane_DE/dane.h"

namespace {

void set_up(pybind11::module_& m) { family::add_tables(m, vexo_xyz_dane_DE::tables()); }

}  // namespace

VEXO_SCRIPT_MODULE(vexo_xyz_dane_DE, "Coordinate systems and bounds of the market DE.", set_up)
