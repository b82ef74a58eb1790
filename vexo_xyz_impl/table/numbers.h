// Cell texts as numbers: what the importer accepts as a coordinate is decided here and nowhere else.
//
// Blanks and no-break spaces are removed everywhere (thousands), a comma is the decimal mark, the rest must be one
// floating-point literal: sign, digits with fraction and exponent, single underscores between digits, digits of any
// script, the words inf, infinity and nan. No other thousands mark is known, and no locale is looked at.
#pragma once

#include <optional>
#include <string_view>

namespace vexo_xyz_impl {

/// The number in `tok`, correctly rounded; fails with ValueError when it holds none.
[[nodiscard]] double _num(std::string_view tok);

/// Whether `_num` succeeds on `tok`.
[[nodiscard]] bool _czy_liczba(std::string_view tok);

/// The number in `tok`, empty when it holds none: `_num` without the failure, for million-row loops.
[[nodiscard]] std::optional<double> parse_number(std::string_view tok);

}  // namespace vexo_xyz_impl
