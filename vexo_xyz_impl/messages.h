// Messages: texts of the catalogue by key, filled printf-style with typed values.
//
// Filling never fails towards the caller: a key that the catalogue lacks is shown as the key, its values dropped,
// and a template that its values do not fit is shown as it stands, of which the family's notices hear. `try_fill` is
// for the one caller that must know.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "vexo_xyz_impl/bindings.h"

namespace vexo_xyz_impl {

/// The catalogue's text of `key` in the market's language, or the key itself.
[[nodiscard]] inline std::string T(std::string_view key) { return bound().loaded.texts->T(key); }

/// A value for a template: a whole number, a real or a text.
using TemplateValue = std::variant<long long, double, std::string_view>;

/// `tpl` with its placeholders (%s, %d, %.8f and the like, %% for a per-cent sign) filled in order; empty when the
/// placeholders and the values disagree in number or type, or a placeholder is malformed.
[[nodiscard]] std::optional<std::string> try_fill(std::string_view tpl, const std::vector<TemplateValue>& values);

/// The text of `key` filled with `values`.
[[nodiscard]] std::string filled(std::string_view key, const std::vector<TemplateValue>& values);

/// Prints the text of `key` as it stands on the host's command line.
void print(std::string_view key);

/// Prints the text of `key` filled with `values`.
void print(std::string_view key, const std::vector<TemplateValue>& values);

}  // namespace vexo_xyz_impl
