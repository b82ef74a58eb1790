// Numbers of any length and spelling, character by character.
//
// A token is left at the first character that no number has at its place, and what may be long in a number (blanks,
// digits that tell no more, white space around it) is passed over a block at a time: a cell may hold a megabyte.
#pragma once

#include <optional>
#include <string_view>

namespace vexo_xyz_impl {

/// The number that `tok` spells by the rules of numbers.h, correctly rounded; empty when it spells none.
[[nodiscard]] std::optional<double> parse_literal(std::string_view tok);

}  // namespace vexo_xyz_impl
