// Which columns hold the point number, X, Y and Z: decided from the content alone, never from header words.
//
// Tests run from hard proof (a label that is no number, a pair of columns that falls in a coordinate system) to
// circumstantial signs (whole rising numbers). Where the content does not settle it the answer stays open and a
// person must be asked; asking is the command's business.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "vexo_xyz_impl/crs/detection.h"
#include "vexo_xyz_impl/input/table.h"

namespace vexo_xyz_impl {

/// Columns from left to right; "Nr" is the point number, without "Z" heights are 0.
enum class Layout { XY, XYZ, NrXY, NrXYZ };

/// "XY", "XYZ", "NrXY" or "NrXYZ".
[[nodiscard]] std::string_view layout_code(Layout layout);

/// Whether the first column is the point number, and whether the last one that is read is the height.
[[nodiscard]] constexpr bool has_number(Layout layout) { return layout == Layout::NrXY || layout == Layout::NrXYZ; }
[[nodiscard]] constexpr bool has_heights(Layout layout) { return layout == Layout::XYZ || layout == Layout::NrXYZ; }

/// The layout of rows of `columns` cells once it is known whether the first holds the point number.
[[nodiscard]] Layout layout_of(std::size_t columns, bool first_is_number);

/// The verdict: the layout or none, its description in the catalogue's words, and the rows that look like data.
struct LayoutVerdict {
  std::optional<Layout> fmt;
  std::string opis;
  std::vector<Row> dane;
};

/// The commonest row length, the greater among equally common ones; 0 without rows.
[[nodiscard]] std::size_t _liczba_kolumn(std::span<const Row> wiersze);

/// The pairs of columns `i` and `j`, row by row; a row where either is missing or no number gives none.
[[nodiscard]] std::vector<Pair> _pary(std::span<const Row> dane, std::size_t i, std::size_t j);

/// Whether column 0 holds point labels; empty when the content cannot tell.
[[nodiscard]] std::optional<bool> _pierwsza_to_numer(std::span<const Row> dane);

/// The verdict on a whole table. Fails with IndexError when two columns prevail and a row of two cells begins with
/// something that is no number and ends with one.
[[nodiscard]] LayoutVerdict _wykryj_format(std::span<const Row> wiersze);

}  // namespace vexo_xyz_impl
