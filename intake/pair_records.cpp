#include "intake/pair_records.h"

#include "intake/cell_number.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {

bool PairRecords::next(Record& record) {
  if (!records_.next(record)) return false;
  if (column_ >= record.cells.size()) return true;
  const std::string_view both = record.cells[column_];
  const std::size_t at = pair_break(both);
  const bool is_pair = at != std::string_view::npos;
  record.cells[column_] = is_pair ? vexo_xyz_impl::text::trim(both.substr(0, at)) : both;
  record.cells.insert(record.cells.begin() + static_cast<std::ptrdiff_t>(column_) + 1,
                      is_pair ? vexo_xyz_impl::text::trim(both.substr(at + 1)) : std::string_view());
  return true;
}

}  // namespace intake
