#include "vexo_xyz_impl/input/table.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kShortGap = 4;  // cells; taking note of a gap would cost as much memory

}  // namespace

Cell Row::behind_gaps(std::size_t column) const {
  const CellRun* run = runs();
  while (column >= run->end) ++run;
  return column < run->begin ? Cell("") : run->cells[column - run->begin];
}

std::string_view Table::adopt(std::vector<char> buffer) {
  buffers_.push_back(std::move(buffer));
  return {buffers_.back().data(), buffers_.back().size()};
}

std::string_view Table::text() const {
  if (buffers_.empty()) return {};
  return {buffers_.back().data(), buffers_.back().size()};
}

bool Table::shares(Cell cell) const {
  const std::less<> before;  // which knows an order of all places in memory
  return !before(cell.data(), shared_.data()) && before(cell.data(), shared_.data() + shared_.size());
}

std::string_view Table::keep(std::string_view text) {
  const std::span<const char> kept = kept_.keep(text);
  return {kept.data(), kept.size()};
}

void Table::set_cell(std::size_t column, Cell cell) {
  const std::size_t before_gaps = cells_.open().size() - columns_.size();
  if (column < before_gaps) {
    cells_.open()[column] = cell;
    return;
  }
  if (columns_.empty() && column - before_gaps <= kShortGap) {
    while (cells_.open().size() < column) cells_.add("");
  } else {
    columns_.push_back(column);
  }
  cells_.add(cell);
}

Row Table::add_row(Row row) {
  if (row.empty()) return {};  // a script's may be
  row.for_each_stored([this](std::size_t column, Cell cell) { set_cell(column, cell); });
  end_row();
  return rows_.back();
}

void Table::forget_rows() {
  cells_ = {};
  runs_ = {};
  rows_ = std::vector<Row>();
}

// The cells from the first long gap on in the order of their columns; of several in one column the last set.
void Table::sort_by_columns() {
  std::vector<std::pair<std::size_t, Cell>> placed;
  const std::span<Cell> cells = cells_.open().last(columns_.size());
  placed.reserve(cells.size());
  for (std::size_t i = 0; i < cells.size(); ++i) placed.emplace_back(columns_[i], cells[i]);
  std::stable_sort(placed.begin(), placed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::size_t kept = 0;
  for (const auto& [column, cell] : placed) {
    if (kept == 0 || columns_[kept - 1] != column) ++kept;
    columns_[kept - 1] = column;
    cells[kept - 1] = cell;
  }
  cells_.shorten(cells_.open().size() - columns_.size() + kept);
  columns_.resize(kept);
}

void Table::end_row_with_gaps() {
  const bool in_order = std::adjacent_find(columns_.begin(), columns_.end(), std::greater_equal<>()) == columns_.end();
  if (!in_order) sort_by_columns();
  const std::span<const Cell> cells = cells_.close();
  CellRun run{0, cells.size() - columns_.size(), cells.data()};
  for (const std::size_t column : columns_) {
    if (column != run.end) {
      if (run.end != 0) runs_.add(run);
      run = {column, column, run.cells + (run.end - run.begin)};
    }
    ++run.end;
  }
  runs_.add(run);
  rows_.emplace_back(runs_.close());
  columns_.clear();
}

}  // namespace vexo_xyz_impl
