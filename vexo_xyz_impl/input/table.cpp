#include "vexo_xyz_impl/input/table.h"

namespace vexo_xyz_impl {

std::vector<Row> Table::rows() const {
  std::vector<Row> rows;
  rows.reserve(size());
  for (std::size_t row = 0; row < size(); ++row) rows.push_back((*this)[row]);
  return rows;
}

}  // namespace vexo_xyz_impl
