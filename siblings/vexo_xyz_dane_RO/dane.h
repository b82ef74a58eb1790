// Coordinate systems and bounds of the market RO.
#pragma once

#include "siblings/vexo_xyz_dane/market_data.h"

namespace vexo_xyz_dane_RO {

[[nodiscard]] vexo_xyz_dane::MarketData tables();

}  // namespace vexo_xyz_dane_RO
