// What columns may be, with what speaks for it: by the header's names, by a line that names the projection, by content
// alone. Whether the best proposal is beyond doubt is said with it; which way is gone is for columns.cpp.
#pragma once

#include <cstddef>
#include <optional>
#include <utility>

#include "intake/columns.h"
#include "intake/table_shape.h"

namespace intake {

using Column = std::size_t;
using Pair = std::pair<Column, Column>;

/// Roles for each column: those named, the rest not taken. Coordinates whose axes are not known stand in the file's
/// order.
[[nodiscard]] Roles roles_with(const TableShape& shape, std::optional<Column> number, Pair pair, bool axes_known,
                               std::optional<Column> height);

/// By the names of the header, of which there must be one; no proposal when they name no two coordinates.
[[nodiscard]] Decision by_names(const TableShape& shape);

/// Below a line that names the projection: x, y, perhaps a height, the place in an image, its name, a point's name.
/// Empty without such a line, or without two numbers.
[[nodiscard]] std::optional<Decision> by_projection_line(const TableShape& shape);

/// By what the columns hold.
[[nodiscard]] Decision by_content(const TableShape& shape);

}  // namespace intake
