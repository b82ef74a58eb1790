// Templates of message catalogues, filled with values by the conversions of printf, with the leniency of the family's
// scripts.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vexo_xyz_impl::text {

/// A value for a template: a whole number, a real or a text, UTF-8.
using TemplateValue = std::variant<long long, double, std::string_view>;

/// `tpl` with its placeholders filled in order; empty when they and the values disagree in number or kind, or one of
/// them is malformed.
///
/// A placeholder is % with flags (- + blank # 0), width, precision, a length that says nothing (h hh l ll L q j z t)
/// and a conversion: d i u take a whole number, of a real what stands before its mark, x X o a whole number; e E f F g
/// G any number; c a code point or a text of one character; s anything, a real with the fewest digits that tell it. %%
/// is a per-cent sign. Width and precision of texts count characters and are at most 500; a * for them is malformed.
[[nodiscard]] std::optional<std::string> try_fill(std::string_view tpl, const std::vector<TemplateValue>& values);

}  // namespace vexo_xyz_impl::text
