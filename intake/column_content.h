// What the values of columns speak for: degrees, a numbering, a height.
#pragma once

#include <cstddef>

#include "intake/table_shape.h"

namespace intake {

/// Whether all numbers of a column lie between -bound and bound; false without numbers.
[[nodiscard]] bool is_within(const TableShape& shape, std::size_t column, double bound);

/// The greatest of a column's numbers, signs aside.
[[nodiscard]] double greatest_size(const TableShape& shape, std::size_t column);

/// Whether two columns evidently hold decimal degrees: many decimals, and a latitude that stays in some belt of the
/// earth, as local metres, which begin near zero, do not.
[[nodiscard]] bool are_degrees(const TableShape& shape, std::size_t a, std::size_t b);

/// Whether they could be degrees, though nothing but their size says so.
[[nodiscard]] bool may_be_degrees(const TableShape& shape, std::size_t a, std::size_t b);

/// Whether a column numbers the rows: whole numbers, hardly one twice, beside columns that are not whole.
[[nodiscard]] bool is_numbering(const TableShape& shape, std::size_t column);

/// Whether a column holds heights beside coordinates: of a height's size, and measured like these.
[[nodiscard]] bool may_be_height(const TableShape& shape, std::size_t a, std::size_t b, std::size_t column);

/// Whether a column would hold heights, were it not for cells that are no numbers.
[[nodiscard]] bool may_hold_heights(const TableShape& shape, std::size_t a, std::size_t b, std::size_t column);

}  // namespace intake
