// A market's tables as the attributes of its data module.
#pragma once

#include <pybind11/pybind11.h>

#include "siblings/vexo_xyz_dane/market_data.h"

namespace family {

/// Adds UKLADY, KOLEJNOSC, NAZWY, KRAJ_LAT, KRAJ_LON, ZONE_EXEMPT, EASTING_HALF and LON_HALF to the module.
void add_tables(pybind11::module_& m, const vexo_xyz_dane::MarketData& tables);

}  // namespace family
