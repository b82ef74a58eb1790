// Data rows into numbered points, and the rows that could not be used with the reason.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "vexo_xyz_impl/input/table.h"
#include "vexo_xyz_impl/table/layout.h"

namespace vexo_xyz_impl {

/// A point as the file states it. `nr` is a view into the table, or into the decomposition when the layout has no
/// number column and points are counted.
struct PointRecord {
  std::string_view nr;
  double x;  ///< metres, as are y and z
  double y;
  double z;  ///< 0.0 in layouts without heights
};

/// A row that gave no point. Of a million of these a few are shown, so their texts are made when they are.
struct SkippedLine {
  std::size_t row = 0;           ///< counted from 1 among the rows taken apart
  Row cells;                     ///< kept with the decomposition
  std::size_t cells_needed = 0;  ///< when there are fewer; else 0: where a number is due there is none
};

/// What `_rozbierz` returns. Moving it keeps the views valid; of the table it needs the texts of the cells, not the
/// rows.
struct Decomposition {
  Decomposition() = default;
  Decomposition(Decomposition&&) noexcept = default;
  Decomposition& operator=(Decomposition&&) noexcept = default;
  Decomposition(const Decomposition&) = delete;
  Decomposition& operator=(const Decomposition&) = delete;
  ~Decomposition() = default;

  std::vector<PointRecord> punkty;
  std::vector<SkippedLine> pominiete;
  Table skipped_rows;                 ///< the rows of `pominiete`
  std::vector<char> counted_numbers;  ///< the texts behind `nr` when points are counted, else empty
};

/// A row for people: its cells joined with single blanks, cut to 40 characters.
[[nodiscard]] std::string row_text(Row row);

/// Why the row gave no point, in the catalogue's words.
[[nodiscard]] std::string reason_text(const SkippedLine& line);

/// Takes the rows apart, each into a point or a skipped line, both in row order.
[[nodiscard]] Decomposition _rozbierz(std::span<const Row> wiersze, Layout fmt);

}  // namespace vexo_xyz_impl
