// Coordinate systems and bounds of the market PL.
#pragma once

#include "siblings/vexo_xyz_dane/market_data.h"

namespace vexo_xyz_dane_PL {

[[nodiscard]] vexo_xyz_dane::MarketData tables();

}  // namespace vexo_xyz_dane_PL
