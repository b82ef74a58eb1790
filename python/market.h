// A market's data module as the module's tables.
#pragma once

#include <vector>

#include <pybind11/pybind11.h>

#include "vexo_xyz_impl/host/siblings.h"

namespace scripting {

/// The tables of a data module. Its codes are opaque to the importer: whole numbers stand for themselves, any other
/// hashable code for a number of its own below zero.
class Market final : public vexo_xyz_impl::host::MarketTables {
 public:
  /// Reads the module's tables once. Fails with the script's exception when one is missing or of another shape.
  explicit Market(pybind11::object module);

  [[nodiscard]] const vexo_xyz_impl::host::MarketData& tables() const override { return tables_; }
  [[nodiscard]] const pybind11::object& module() const { return module_; }

  /// The number that stands for a script's code. Fails with KeyError for one that the market has never named.
  [[nodiscard]] int number_of(pybind11::handle code) const;

  /// The script's code that a number stands for.
  [[nodiscard]] pybind11::object code_of(int number) const;

 private:
  int enter(pybind11::handle code);

  pybind11::object module_;
  pybind11::dict numbers_;               // code to number
  std::vector<pybind11::object> codes_;  // codes that are no whole numbers, from -1 downwards
  vexo_xyz_impl::host::MarketData tables_;
};

}  // namespace scripting
