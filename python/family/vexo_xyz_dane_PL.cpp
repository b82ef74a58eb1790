// vexo_xyz_dane_PL for scripts: the coordinate systems and bounds of the market PL.
#include "python/family/market_tables.h"
#include "python/module_start.h"
#include "siblings/vexo_xyz_dane_PL/dane.h"

namespace {

void set_up(pybind11::module_& m) { family::add_tables(m, vexo_xyz_dane_PL::tables()); }

}  // namespace

VEXO_SCRIPT_MODULE(vexo_xyz_dane_PL, "Coordinate systems and bounds of the market PL.", set_up)
