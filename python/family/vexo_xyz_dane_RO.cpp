// vexo_xyz_dane_RO for scripts: the coordinate systems and bounds of the market RO.
#include "python/family/market_tables.h"
#include "python/module_start.h"
#include "siblings/vexo_xyz_dane_RO/dane.h"

namespace {

void set_up(pybind11::module_& m) { family::add_tables(m, vexo_xyz_dane_RO::tables()); }

}  // namespace

VEXO_SCRIPT_MODULE(vexo_xyz_dane_RO, "Coordinate systems and bounds of the market RO.", set_up)
