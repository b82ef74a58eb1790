// The table of rows: the one shape in which every reader delivers its content.
//
// A `Table` owns its text in a few large buffers; a cell is a view into one of them and a row is a span of cells, so
// that a file of a million lines costs no allocation per cell or per row. Rows may differ in length, a gap inside a
// row is the empty text, no row is empty. Views stay valid while the table lives, also when it is moved.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace vexo_xyz_impl {

/// A cell's text, UTF-8.
using Cell = std::string_view;

/// A row's cells; index 0 is the first column.
using Row = std::span<const Cell>;

class Table {
 public:
  Table() = default;
  Table(Table&&) noexcept = default;
  Table& operator=(Table&&) noexcept = default;
  Table(const Table&) = delete;
  Table& operator=(const Table&) = delete;
  ~Table() = default;

  /// Takes over a buffer whose parts become cells; the view is valid while the table lives.
  std::string_view adopt(std::vector<char> buffer);

  /// Keeps a copy of a text that stands in no buffer.
  std::string_view keep(std::string_view text);

  /// Adds a cell to the row being made.
  void add_cell(Cell cell) { cells_.push_back(cell); }

  /// Sets the cell at `column` of the row being made, with gaps before it where cells are missing.
  void set_cell(std::size_t column, Cell cell) {
    if (column >= current_size()) cells_.resize(ends_.back() + column + 1, Cell(""));
    cells_[ends_.back() + column] = cell;
  }

  /// Cells of the row being made.
  [[nodiscard]] std::size_t current_size() const { return cells_.size() - ends_.back(); }

  /// Cells of all rows.
  [[nodiscard]] std::size_t cell_count() const { return cells_.size(); }

  /// Ends the row being made; does nothing when it has no cell.
  void end_row() {
    if (current_size() != 0) ends_.push_back(cells_.size());
  }

  [[nodiscard]] std::size_t size() const { return ends_.size() - 1; }
  [[nodiscard]] Row operator[](std::size_t row) const {
    return Row(cells_).subspan(ends_[row], ends_[row + 1] - ends_[row]);
  }

  /// All rows in order, as spans into this table.
  [[nodiscard]] std::vector<Row> rows() const;

 private:
  std::vector<std::vector<char>> buffers_;  // not strings: views must survive a move of the table
  std::size_t kept_ = 0;                    // index of the buffer that `keep` fills, plus 1
  std::vector<Cell> cells_;
  std::vector<std::size_t> ends_{0};  // index past the last cell of each row, after a leading 0
};

}  // namespace vexo_xyz_impl
