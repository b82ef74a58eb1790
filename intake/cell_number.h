// A cell of a foreign table as a number, and how it is spelled for the importer: its digits as they stand, a point for
// the mark, nothing between thousands.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace intake {

/// How a number is spelled. Blanks, apostrophes and the mark that is not the decimal one may part thousands, three
/// digits each; a single comma is always the decimal mark.
enum class NumberForm { none, whole, point, comma };

[[nodiscard]] NumberForm number_form(std::string_view cell);

/// Appends the number that `cell` spells as the importer reads it; false, with nothing appended, when it is none, not
/// finite or so large that it stands for none, as 1E31 does.
[[nodiscard]] bool append_number(std::string& out, std::string_view cell);

/// Whether the cell is a number that `append_number` takes for none: nan, infinite or too large.
[[nodiscard]] bool is_no_finite_number(std::string_view cell);

/// Digits behind the mark of a plain number.
[[nodiscard]] std::size_t decimals_of(std::string_view cell);

/// Whether the cell is an angle by more than its digits, and no number: with signs for degrees, minutes or seconds, of
/// three parts, or with the letter of a hemisphere: 52°13'12", 52.2123°, 52:13:12.5, 50-13-41, 50 13 41.1, N52.2. A
/// time of day, 10:13:41, is one too.
[[nodiscard]] bool is_sexagesimal(std::string_view cell);

/// Whether the cell holds two numbers, each with its point, parted by a comma, a semicolon or a blank.
[[nodiscard]] bool is_pair(std::string_view cell);

/// Whether the cell holds two numbers of at least four digits, that may be one with a decimal comma as well.
[[nodiscard]] bool is_long_pair(std::string_view cell);

/// Whether the cell is a number with decimals and signs that are none of it: =100.3, 100.3*, (100.3).
[[nodiscard]] bool is_nearly_number(std::string_view cell);

/// Where such a pair, or one of whole numbers, is parted; npos when the cell holds no two numbers.
[[nodiscard]] std::size_t pair_break(std::string_view cell);

}  // namespace intake
