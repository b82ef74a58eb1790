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
  explicit Table(std::vector<char> text) : text_(std::move(text)) {}
  Table(Table&&) noexcept = default;
  Table& operator=(Table&&) noexcept = default;
  Table(const Table&) = delete;
  Table& operator=(const Table&) = delete;
  ~Table() = default;

  /// The buffer that the cells point into.
  [[nodiscard]] std::string_view text() const { return {text_.data(), text_.size()}; }

  void add_cell(Cell cell) { cells_.push_back(cell); }

  /// Ends the row made of the cells added since the last one; does nothing when there are none.
  void end_row() {
    if (cells_.size() != ends_.back()) ends_.push_back(cells_.size());
  }

  [[nodiscard]] std::size_t size() const { return ends_.size() - 1; }
  [[nodiscard]] Row operator[](std::size_t row) const {
    return Row(cells_).subspan(ends_[row], ends_[row + 1] - ends_[row]);
  }

  /// All rows in order, as spans into this table.
  [[nodiscard]] std::vector<Row> rows() const;

 private:
  std::vector<char> text_;  // not a std::string: views must survive a move
  std::vector<Cell> cells_;
  std::vector<std::size_t> ends_{0};  // index past the last cell of each row, after a leading 0
};

}  // namespace vexo_xyz_impl
