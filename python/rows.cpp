#include "python/rows.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

#include "python/values.h"
#include "vexo_xyz_impl/failure.h"

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
    rows_.emplace_back(std::span<const Cell>(cells_).subspan(begin, length));
    begin += length;
  }
}

const py::object& ScriptRows::object_of(Row row) const {
  // Rows lie one behind the other; of empty rows, which share a place, none is ever asked for.
  const auto found = std::partition_point(rows_.begin(), rows_.end(),
                                          [row](Row own) { return own.data() + own.size() <= row.data(); });
  return objects_.at(static_cast<std::size_t>(found - rows_.begin()));
}

namespace {

// In all rows together, at 8 bytes each: gaps take memory in lists.
constexpr std::size_t kMostPlaces = std::size_t{1} << 27U;

// A list that is filled in one pass, item by item; until it is `filled` no garbage collection shows it to anybody.
py::list unfilled(std::size_t size) {
  auto list = py::reinterpret_steal<py::list>(PyList_New(static_cast<Py_ssize_t>(size)));
  if (!list) throw py::error_already_set();
  PyObject_GC_UnTrack(list.ptr());
  return list;
}

py::list filled(py::list list) {
  PyObject_GC_Track(list.ptr());
  return list;
}

void fill(const py::list& list, std::size_t at, py::object item) {
  PyList_SET_ITEM(list.ptr(), static_cast<Py_ssize_t>(at), item.release().ptr());
}

// Cells as texts: one object for all that share a text.
class CellTexts {
 public:
  explicit CellTexts(const vexo_xyz_impl::Table& table) : table_(table) {}

  py::object of(Cell cell) {
    if (!table_.shares(cell)) return to_script(cell);
    py::object& known = known_[cell.data()];
    if (!known) known = to_script(cell);
    return known;
  }

 private:
  const vexo_xyz_impl::Table& table_;
  std::unordered_map<const char*, py::object> known_;
};

}  // namespace

py::list list_of(const vexo_xyz_impl::Table& table) {
  std::size_t places = 0;
  for (const Row row : table.rows()) places += row.size();
  if (places > kMostPlaces) {
    throw vexo_xyz_impl::MemoryError("as lists, the rows would have " + std::to_string(places) +
                                     " cells, gaps among them; delete what stands far to the right");
  }
  CellTexts texts(table);
  const py::str gap;
  py::list rows = unfilled(table.size());
  for (std::size_t i = 0; i < table.size(); ++i) {
    const Row row = table[i];
    py::list cells = unfilled(row.size());
    std::size_t at = 0;
    for (const Cell cell : row) fill(cells, at++, cell.empty() ? py::object(gap) : texts.of(cell));
    fill(rows, i, filled(std::move(cells)));
  }
  return filled(std::move(rows));
}

}  // namespace scripting
