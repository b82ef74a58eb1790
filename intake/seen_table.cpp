#include "intake/seen_table.h"

#include <algorithm>

#include "intake/columns.h"

namespace intake {

SeenTable::SeenTable(const ForeignTable& table, const Roles* roles)
    : table_(table),
      cells_(table.dialect ? Cells::counted : Cells::placed),
      records_(table.records.get()),
      shape_(shape_of(*records_, table.comments, cells_)) {
  const auto both = pair_column(shape_, roles);
  if (!both) return;
  records_ = &parted_.emplace(*records_, *both);
  shape_ = shape_of(*records_, table.comments, cells_);
}

PreparedForm SeenTable::form(const Roles& roles, MissingHeight missing_height) const {
  PreparedForm form{roles, missing_height, shape_.header_line, shape_.first_data_line, {}, {}};
  if (cells_ == Cells::counted) form.spreads = shape_.spreads;
  const bool cells_move = table_.dialect && table_.dialect->separator == ' ';
  if (!cells_move) return form;
  form.kinds = shape_.kinds;
  for (std::size_t i = 0; i < std::min(roles.size(), form.kinds.size()); ++i)
    if (roles[i] == Role::number) form.kinds[i] = CellKind::any;  // of a point: a text at any time
  return form;
}

}  // namespace intake
