#include "siblings/vexo_xyz_dane/market_data.h"

#include "vexo_xyz_impl/failure.h"

namespace vexo_xyz_dane {

std::optional<vexo_xyz_impl::host::ZoneParameters> Tables::UKLADY(int srid) const {
  if (const auto found = data_.UKLADY.find(srid); found != data_.UKLADY.end()) return found->second;
  throw vexo_xyz_impl::KeyError("the market has no coordinate system " + std::to_string(srid));
}

std::optional<std::string> Tables::NAZWY(int srid) const {
  const auto found = data_.NAZWY.find(srid);
  return found != data_.NAZWY.end() ? std::optional(found->second) : std::nullopt;
}

}  // namespace vexo_xyz_dane
