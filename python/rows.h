// Rows of cells between scripts and the module.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include <pybind11/pybind11.h>

#include "vexo_xyz_impl/input/table.h"

namespace scripting {

/// A script's sequence of rows, each a sequence of cells; a cell that is no text is turned into its text form first.
class ScriptRows {
 public:
  explicit ScriptRows(const pybind11::object& rows);
  [[nodiscard]] std::span<const vexo_xyz_impl::Row> rows() const { return rows_; }

  /// The script's own row object behind one of `rows()`.
  [[nodiscard]] const pybind11::object& object_of(vexo_xyz_impl::Row row) const;

 private:
  vexo_xyz_impl::Table texts_;
  std::vector<vexo_xyz_impl::Cell> cells_;
  std::vector<vexo_xyz_impl::Row> rows_;
  std::vector<pybind11::object> objects_;
};

/// A table as a list of lists of texts.
[[nodiscard]] pybind11::list list_of(const vexo_xyz_impl::Table& table);

}  // namespace scripting
