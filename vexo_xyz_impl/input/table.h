// The table of rows: the one shape in which every reader delivers its content.
//
// A `Table` owns its text in a few large buffers; a cell is a view into one of them and a row a view of its cells, so
// that a file of a million lines costs no allocation per cell or per row. Rows may differ in length, a gap inside a
// row is the empty text, no row is empty. Views stay valid while the table lives, also when it is moved.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "vexo_xyz_impl/input/groups.h"
#include "vexo_xyz_impl/input/row.h"

namespace vexo_xyz_impl {

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

  /// Takes over the buffer of the shared strings of a workbook.
  void adopt_shared(std::vector<char> buffer) { shared_ = adopt(std::move(buffer)); }

  /// Whether the cell is a shared string of a workbook: all cells that share it are views of the same bytes.
  [[nodiscard]] bool shares(Cell cell) const;

  /// The buffer adopted last: the text of a text file, the XML of a worksheet; empty when there is none.
  [[nodiscard]] std::string_view text() const;

  /// The encoding that the text was decoded from, as the readers name it; empty for a workbook.
  [[nodiscard]] std::string_view encoding() const { return encoding_; }
  void note_encoding(std::string_view name) { encoding_ = name; }

  /// Keeps a copy of a text that stands in no buffer.
  std::string_view keep(std::string_view text);

  /// Adds a cell to the row being made.
  void add_cell(Cell cell) { cells_.add(cell); }

  /// Sets the cell at `column` of the row being made, whatever columns were set before; what is never set is a gap. Not
  /// for a row that cells are added to.
  void set_cell(std::size_t column, Cell cell);

  /// Ends the row being made; does nothing when it has no cell.
  void end_row() {
    if (!columns_.empty()) {
      end_row_with_gaps();
    } else if (!cells_.open().empty()) {
      rows_.emplace_back(cells_.close());
    }
  }

  /// Adds a copy of another table's row, whose texts must outlive this table.
  Row add_row(Row row);

  /// Forgets all rows and their cells; the texts of the cells stay.
  void forget_rows();

  /// Cells that take memory: all but those of long gaps.
  [[nodiscard]] std::size_t stored_cells() const { return cells_.count(); }

  [[nodiscard]] std::size_t size() const { return rows_.size(); }
  [[nodiscard]] Row operator[](std::size_t row) const { return rows_[row]; }

  /// All rows in order.
  [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }

 private:
  void sort_by_columns();
  void end_row_with_gaps();

  std::vector<std::vector<char>> buffers_;  // not strings: views must survive a move of the table
  std::string_view encoding_;               // of a literal
  Groups<char> kept_;
  std::string_view shared_;  // one of the buffers
  Groups<Cell> cells_;
  Groups<CellRun> runs_;
  std::vector<std::size_t> columns_;  // of the row being made, those of its cells from the first long gap on
  std::vector<Row> rows_;
};

}  // namespace vexo_xyz_impl
