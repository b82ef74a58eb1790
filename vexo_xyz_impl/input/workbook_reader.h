// Reads the first worksheet of an .xlsx workbook into the table of rows.
//
// No XML parser: the few elements that matter are picked from the package's members by patterns (elements.h), which are
// part of the design. Cells land in the column their reference names, so that an empty cell shifts nothing; the
// row's own number, formats, merged and hidden cells are ignored; entities stay as written. The first worksheet is the
// one whose member name sorts first, whatever the order of tabs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "vexo_xyz_impl/input/table.h"

namespace vexo_xyz_impl {

class Package;

/// The most cells that a worksheet may have, long gaps left out; a cell takes 16 bytes. More than a worksheet of the
/// largest size that is unpacked has room for, unless its cells are empty.
inline constexpr std::size_t kMostCells = std::size_t{1} << 25U;

/// The most columns, sixty times those that spreadsheet programs have.
inline constexpr std::size_t kMostColumns = std::size_t{1} << 20U;

/// Zero-based column of a cell reference ("C7" is 2); empty when it does not begin with a letter A to Z. Fails with
/// OverflowError for a column that no integer holds.
[[nodiscard]] std::optional<std::uint64_t> _kol_nr(std::string_view ref);

/// The member that is read: the worksheet whose name sorts first; empty when there is none.
[[nodiscard]] std::string_view worksheet_read(const Package& package);

/// The rows of the workbook at `path`, none when it holds no worksheet. Fails as `Package` does (package.h), and with
/// MemoryError, naming the cell, when there are more than `kMostCells` or `kMostColumns`.
[[nodiscard]] Table _czytaj_xlsx(const std::string& path);

}  // namespace vexo_xyz_impl
