// Coordinate systems and bounds of the market RO.
#pragma once

#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_xyz_dane_RO {

class Tables final : public vexo_xyz_impl::host::MarketTables {
 public:
  [[nodiscard]] const vexo_xyz_impl::host::MarketData& tables() const override;
};

}  // namespace vexo_xyz_dane_RO
