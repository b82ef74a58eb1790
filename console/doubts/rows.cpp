// Doubts about rows that the layout left out although they may hold points.
#include <algorithm>
#include <utility>

#include "console/doubts/doubts.h"
#include "intake/cell_number.h"
#include "vexo_xyz_impl/table/numbers.h"

namespace console {
namespace {

using vexo_xyz_impl::Row;

// Two numbers are what a point has at least. A header has none; the title above it a year or a count, whole ones.
bool may_be_a_point(Row row, bool above_the_data) {
  constexpr std::size_t kCellsLookedAt = 8;
  std::size_t numbers = 0;
  std::size_t with_decimals = 0;
  for (std::size_t i = 0; i < std::min(row.size(), kCellsLookedAt); ++i) {
    if (!vexo_xyz_impl::_czy_liczba(row[i])) continue;
    ++numbers;
    with_decimals += intake::decimals_of(row[i]) > 0 ? 1 : 0;
  }
  return numbers >= 2 && (!above_the_data || with_decimals > 0);
}

}  // namespace

std::optional<Doubt> doubt_rows_left_out(Evidence& evidence) {
  const auto& rows = evidence.seen.loaded.rows->rows();
  std::vector<std::size_t> lines;
  const std::size_t first = evidence.places.row_of_data(0);
  for (const std::size_t row : evidence.places.left_out())
    if (may_be_a_point(rows[row], row < first)) lines.push_back(evidence.places.line_of_row(row));
  for (const auto& line : evidence.seen.read.pominiete)
    if (line.cells_needed != 0) lines.push_back(evidence.places.line_of_row(evidence.places.row_of_data(line.row - 1)));
  std::sort(lines.begin(), lines.end());
  return doubt_at("rows_left_out", "konsola.watp_wiersze", std::move(lines));
}

}  // namespace console
