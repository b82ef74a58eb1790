// A script's market data module in the importer's role.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <pybind11/pybind11.h>

#include "vexo_xyz_impl/host/siblings.h"

namespace scripting {

/// The tables of a data module, asked as they are at each use. Codes are opaque to the importer: whole numbers stand
/// for themselves, any other hashable code for a number of its own below zero. The role's calls take the lock, the
/// others want it held.
class ScriptMarket final : public vexo_xyz_impl::host::MarketTables {
 public:
  explicit ScriptMarket(pybind11::module_ module) : module_(std::move(module)) {}

  /// The number that stands for a script's code, and the code that a number stands for.
  [[nodiscard]] int number_of(const pybind11::object& code) const;
  [[nodiscard]] pybind11::object code_of(int number) const;

  /// The name of a script's code, as the very object; "EPSG:" and the code when it has none.
  [[nodiscard]] pybind11::object name_of(const pybind11::object& code) const;

  [[nodiscard]] std::optional<vexo_xyz_impl::host::ZoneParameters> UKLADY(int srid) const override;
  [[nodiscard]] std::vector<int> KOLEJNOSC() const override;
  [[nodiscard]] std::optional<std::string> NAZWY(int srid) const override;
  [[nodiscard]] std::pair<double, double> KRAJ_LAT() const override { return range("KRAJ_LAT"); }
  [[nodiscard]] std::pair<double, double> KRAJ_LON() const override { return range("KRAJ_LON"); }
  [[nodiscard]] bool ZONE_EXEMPT(int srid) const override;
  [[nodiscard]] std::optional<double> EASTING_HALF() const override { return limit("EASTING_HALF"); }
  [[nodiscard]] std::optional<double> LON_HALF() const override { return limit("LON_HALF"); }

 private:
  [[nodiscard]] std::pair<double, double> range(const char* table) const;
  [[nodiscard]] std::optional<double> limit(const char* table) const;

  pybind11::module_ module_;
  // Codes that are no whole numbers, from -1 downwards; guarded by the lock. Only codes of the tables come here.
  mutable pybind11::dict numbers_;
  mutable std::vector<pybind11::object> codes_;
};

}  // namespace scripting
