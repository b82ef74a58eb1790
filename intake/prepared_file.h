// The file of points that the importer reads without doubt: UTF-8, semicolons, a first line that names the columns,
// then number, easting, northing and height a row, or the coordinates in the file's order where their axes are not
// known. Digits stay as they stand, but for a decimal comma and what parts thousands.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "intake/records.h"
#include "intake/roles.h"
#include "intake/table_shape.h"

namespace intake {

enum class MissingHeight { skip, zero };

/// What is made of the records.
struct PreparedForm {
  Roles roles;  ///< with both coordinates; without a number the points are counted
  MissingHeight missing_height = MissingHeight::skip;
  std::size_t header_line = 0;      ///< 0 without a header
  std::size_t first_data_line = 0;  ///< what stands before it and holds no point belongs to the head
  /// Between blanks a value that is missing moves those behind it: what a row of fewer cells must hold, column by
  /// column, to be taken as one that ends early or lacks its height. Empty where cells do not move.
  std::vector<CellKind> kinds;
  /// By column, of the rows with as many cells: what a row of more cells is held against, for a cell too many in front
  /// moves its coordinates. Empty where cells do not move.
  std::vector<Spread> spreads;
};

/// Why a row gives no point, or what was done to it.
enum class RowNote {
  too_few_cells,       ///< a column that is taken is missing
  no_coordinate,       ///< no number where a coordinate is due
  not_finite,          ///< nan, infinite or too large for a coordinate
  moved,               ///< more cells than the others have, and the coordinates are further right
  no_height,           ///< left out
  height_set_to_zero,  ///< a point all the same
  number_changed,      ///< a point; its number held what the importer cannot read
  number_made,         ///< a point that had no number: named by its line
  hidden,              ///< a point all the same; people do not see its row on the sheet
};

/// Whether the note is of a row that gave no point.
[[nodiscard]] constexpr bool is_left_out(RowNote note) { return note <= RowNote::no_height; }

struct NotedRow {
  std::size_t line = 0;
  RowNote note = RowNote::too_few_cells;
  std::string text;  ///< the row's cells, shortened
};

/// Rows that came from lines at equal distances.
struct LineRun {
  std::size_t first_line = 0;
  std::size_t distance = 0;   ///< from line to line; 0 with a single row
  std::size_t first_row = 0;  ///< counted from 1, the line of names aside
  std::size_t rows = 0;
};

/// What became of the records: records = points + head + rows left out.
struct PreparedAccount {
  std::size_t records = 0;
  std::size_t points = 0;
  std::vector<NotedRow> head;  ///< titles, names and units before the first row; their note says nothing
  std::vector<NotedRow> noted;
  std::size_t left_out = 0;
  std::vector<LineRun> runs;
};

/// Whether roles name two coordinates, both with their axes or both without.
[[nodiscard]] bool name_coordinates(const Roles& roles);

/// Writes the file of all records, from the first. `write` is given large pieces; its failures travel on.
[[nodiscard]] PreparedAccount write_prepared(Records& records, const PreparedForm& form,
                                             const std::function<void(std::string_view)>& write);

}  // namespace intake
