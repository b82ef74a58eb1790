#include "python/rows.h"

#include <algorithm>

#include "python/values.h"

namespace scripting {

namespace py = pybind11;
using vexo_xyz_impl::Cell;
using vexo_xyz_impl::Row;

ScriptRows::ScriptRows(const py::object& rows) {
  std::vector<std::size_t> lengths;
  for (const py::handle row : rows) {
    objects_.push_back(py::reinterpret_borrow<py::object>(row));
    std::size_t length = 0;
    for (const py::handle cell : row) {
      cells_.push_back(texts_.keep(from_script(cell)));
      ++length;
    }
    lengths.push_back(length);
  }
  std::size_t begin = 0;
  for (const std::size_t length : lengths) {
    rows_.push_back(Row(cells_).subspan(begin, length));
    begin += length;
  }
}

const py::object& ScriptRows::object_of(Row row) const {
  // Rows lie one behind the other; of empty rows, which share a place, none is ever asked for.
  const auto found = std::partition_point(rows_.begin(), rows_.end(),
                                          [row](Row own) { return own.data() + own.size() <= row.data(); });
  return objects_.at(static_cast<std::size_t>(found - rows_.begin()));
}

py::list list_of(const vexo_xyz_impl::Table& table) {
  py::list rows(table.size());
  for (std::size_t i = 0; i < table.size(); ++i) {
    const Row row = table[i];
    py::list cells(row.size());
    for (std::size_t j = 0; j < row.size(); ++j) cells[j] = to_script(row[j]);
    rows[i] = std::move(cells);
  }
  return rows;
}

}  // namespace scripting
