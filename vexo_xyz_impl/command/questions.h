// The steps of the import that may need the user: the path and the column layout; the order of the axes has a file of
// its own (axes.h).
//
// Each says on the command line what it found and asks only what the data leave open.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "vexo_xyz_impl/input/declared_columns.h"
#include "vexo_xyz_impl/table/layout.h"

namespace vexo_xyz_impl {

/// A path as typed or pasted, without the blanks and double quotes around it.
[[nodiscard]] std::string_view clean_path(std::string_view typed);

/// The path from the file dialog or typed; empty, with the user told, when there is none.
[[nodiscard]] std::optional<std::string> ask_path();

/// Lets the user settle a layout that the content leaves open. False, with the user told, when the user cancelled.
/// Without a row of data neither answer could make a point: then nothing is asked and the layout stays open.
[[nodiscard]] bool ask_layout(LayoutVerdict& verdict);

/// What the first line of a text file's `text` states of its columns. Empty when it states nothing or, with the user
/// told, when that does not fit the rows.
[[nodiscard]] std::optional<DeclaredColumns> columns_by_first_line(std::string_view text, std::span<const Row> wiersze);

/// The verdict that follows from it. All rows are data: those that give no point are to show among the skipped ones.
[[nodiscard]] LayoutVerdict declared_layout(const DeclaredColumns& declared, std::span<const Row> wiersze);

}  // namespace vexo_xyz_impl
