// What a table looks like from its first records: where its names and its data begin, and what each column holds. Seen
// here, decided in `columns.h`.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "intake/records.h"

namespace intake {

/// A column's cells among the sampled rows of data.
struct ColumnContent {
  std::size_t filled = 0;
  std::size_t numbers = 0;  ///< also those of `sexagesimal`'s seconds alone are none
  std::size_t whole = 0;    ///< without a mark
  std::size_t fine = 0;     ///< with at least four decimals
  std::size_t finest = 0;   ///< with at least six, as decimal degrees have and metres do not
  std::size_t nearly = 0;   ///< no numbers, but for signs around one with decimals: =100.3, 100.3*
  std::size_t sexagesimal = 0;
  std::size_t pairs = 0;        ///< two numbers with points
  std::size_t whole_pairs = 0;  ///< two numbers of at least four digits, that may be one with a decimal comma
  std::size_t distinct = 0;
  std::size_t rising = 0;  ///< numbers greater than the one before
  double least = 0.0;      ///< of its numbers
  double greatest = 0.0;

  [[nodiscard]] bool is_numeric() const { return filled > 0 && 10 * numbers >= 9 * filled; }
  [[nodiscard]] bool is_whole() const { return numbers > 0 && whole == numbers; }
  [[nodiscard]] bool is_constant() const { return numbers > 0 && least == greatest; }
};

/// What a column holds in all rows that have as many cells as there are columns.
enum class CellKind { any, number, text };

/// How a column's numbers lie; all zero without numbers.
struct Spread {
  double least = 0.0;
  double median = 0.0;
  double greatest = 0.0;
};

/// What a line above the data says of the coordinates' system.
enum class Projection { none, projected, geographic };

struct TableShape {
  std::size_t rows = 0;             ///< of data, sampled
  std::size_t width = 0;            ///< columns: the commonest number of cells
  std::size_t header_line = 0;      ///< physical; 0 without a header
  std::size_t first_data_line = 0;  ///< 0 without data
  std::vector<std::string> names;   ///< by column, empty ones where there is none
  /// Names that are more or fewer than the columns, so that nobody knows which is whose; else empty.
  std::vector<std::string> loose_names;
  std::vector<ColumnContent> columns;
  std::vector<CellKind> kinds;                    ///< by column
  std::size_t cells = 0;                          ///< the commonest number of cells in a row
  std::vector<Spread> spreads;                    ///< by column, of the rows that have as many cells
  std::vector<std::vector<std::string>> preview;  ///< the first rows of data
  Projection projection = Projection::none;
};

/// Whether each cell stands in its column, as on a sheet, or is only counted from the left.
enum class Cells { counted, placed };

/// The shape of the records from the first on. `comments` are the lines of comment before them, which may hold names.
[[nodiscard]] TableShape shape_of(Records& records,
                                  const std::vector<std::pair<std::size_t, std::string_view>>& comments, Cells cells);

}  // namespace intake
