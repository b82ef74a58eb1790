// What a country's data module states, as plain data, and the role that it plays for the importer.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_xyz_dane {

/// The tables of one market, by EPSG code; see `host::MarketTables` for their meaning.
struct MarketData {
  std::map<int, std::optional<vexo_xyz_impl::host::ZoneParameters>> UKLADY;  ///< none: Stereo 70
  std::vector<int> KOLEJNOSC;
  std::map<int, std::string> NAZWY;
  std::pair<double, double> KRAJ_LAT;  ///< degrees, as are the longitudes
  std::pair<double, double> KRAJ_LON;
  std::set<int> ZONE_EXEMPT;
  std::optional<double> EASTING_HALF;  ///< metres
  std::optional<double> LON_HALF;      ///< degrees
};

/// `data` behind the importer's role.
class Tables final : public vexo_xyz_impl::host::MarketTables {
 public:
  explicit Tables(MarketData data) : data_(std::move(data)) {}

  [[nodiscard]] std::optional<vexo_xyz_impl::host::ZoneParameters> UKLADY(int srid) const override;
  [[nodiscard]] std::vector<int> KOLEJNOSC() const override { return data_.KOLEJNOSC; }
  [[nodiscard]] std::optional<std::string> NAZWY(int srid) const override;
  [[nodiscard]] std::pair<double, double> KRAJ_LAT() const override { return data_.KRAJ_LAT; }
  [[nodiscard]] std::pair<double, double> KRAJ_LON() const override { return data_.KRAJ_LON; }
  [[nodiscard]] bool ZONE_EXEMPT(int srid) const override { return data_.ZONE_EXEMPT.contains(srid); }
  [[nodiscard]] std::optional<double> EASTING_HALF() const override { return data_.EASTING_HALF; }
  [[nodiscard]] std::optional<double> LON_HALF() const override { return data_.LON_HALF; }

 private:
  MarketData data_;
};

}  // namespace vexo_xyz_dane
