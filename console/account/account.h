// Every line of a file accounted for: what became a point, what did not, and why.
//
// Taken from what the import saw; nothing is read a second time. The sums close for every file: lines = comments +
// blank + rows, rows = points + skipped + left out. Of a worksheet the rows that have cells are counted, each a line.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "console/account/lines.h"
#include "vexo_xyz_impl/command/import_seen.h"

namespace console {

/// Why a row gave no point.
enum class Why {
  too_few_columns,  ///< fewer cells than the layout takes
  no_number,        ///< no number where one is due
  refused,          ///< the drawing takes no such coordinates
  not_imported,     ///< nothing was: the columns stayed open, or the import failed
};

struct RowWithoutPoint {
  std::size_t line = 0;  ///< physical line; of a worksheet, the row counted
  Why why = Why::no_number;
  std::string text;  ///< its cells, cut to 40 characters
};

struct Account {
  std::size_t lines = 0;
  std::size_t comments = 0;
  std::size_t blank = 0;
  std::size_t rows = 0;
  std::size_t points = 0;                 ///< in the drawing
  std::vector<RowWithoutPoint> skipped;   ///< data rows that gave no point in it
  std::vector<RowWithoutPoint> left_out;  ///< rows that the layout does not count among the data
};

/// Where rows and points of an import stand in its file. Rows by their index in the table, points by theirs.
class RowPlaces {
 public:
  /// To be made while the table still has its rows; valid while what was seen lives.
  explicit RowPlaces(const vexo_xyz_impl::ImportSeen& seen);

  [[nodiscard]] std::size_t line_of_row(std::size_t row);
  /// Once the table's rows are forgotten, only of points with numbers of their own, which show where they stand.
  [[nodiscard]] std::size_t line_of_point(std::size_t point);

  /// The point's row in the table.
  [[nodiscard]] std::size_t row_of_point(std::size_t point) const;
  /// The table's row of the data row of that index.
  [[nodiscard]] std::size_t row_of_data(std::size_t data_row) const;

  /// Rows of the table that are no data rows, rising.
  [[nodiscard]] const std::vector<std::size_t>& left_out() const { return left_out_; }

 private:
  const vexo_xyz_impl::ImportSeen& seen_;
  bool is_text_;
  std::vector<std::size_t> left_out_;  // rows of the table
  std::vector<std::size_t> skipped_;   // data rows
  LineFinder finder_;
};

/// The account of an import whose rows were taken apart just now.
[[nodiscard]] Account account_of(const vexo_xyz_impl::ImportSeen& seen, RowPlaces& places);

/// Takes points back that are not in the drawing after all: those that it refused, or all when the import failed.
void take_back(Account& account, const vexo_xyz_impl::ImportSeen& seen, const RowPlaces& places,
               std::span<const std::size_t> points, Why why);

/// The account of an import that made no points: each row with the reason it would have had, or that nothing was
/// imported.
[[nodiscard]] Account account_without_points(const vexo_xyz_impl::ImportSeen& seen);

}  // namespace console
