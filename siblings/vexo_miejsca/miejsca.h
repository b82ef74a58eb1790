// Towns and villages, so that people see at a glance where a position is.
//
// The tables (places/) are part of the module: nothing is looked up on a disk. Distances are those on a sphere, right
// within half a per cent.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_miejsca {

/// The place of the market ("PL", "DE", "RO") nearest to a position in degrees; of those hardly farther the one with
/// the most people, which is the one that is known. None for a market without a table, for a position that is none
/// and for one more than 150 km from every place.
[[nodiscard]] std::optional<vexo_xyz_impl::host::NearbyPlace> nearest_place(std::string_view market, double lat,
                                                                            double lon);

class Places final : public vexo_xyz_impl::host::Places {
 public:
  explicit Places(std::string market) : market_(std::move(market)) {}
  [[nodiscard]] std::optional<vexo_xyz_impl::host::NearbyPlace> najblizsze_miejsce(double lat,
                                                                                   double lon) const override {
    return nearest_place(market_, lat, lon);
  }

 private:
  std::string market_;
};

}  // namespace vexo_miejsca
