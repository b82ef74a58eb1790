// Messages: texts of the catalogue by key, filled printf-style with typed values.
//
// Filling never fails towards the caller: a key that the catalogue lacks is shown as the key, its values dropped,
// and a template that its values do not fit is shown as it stands, of which the family's notices hear.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vexo_xyz_impl/bindings.h"
#include "vexo_xyz_impl/text/printf_template.h"

namespace vexo_xyz_impl {

using text::TemplateValue;

/// The catalogue's text of `key` in the market's language, or the key itself.
[[nodiscard]] inline std::string T(std::string_view key) { return bound().loaded.texts->T(key); }

/// The text of `key` filled with `values`.
[[nodiscard]] std::string filled(std::string_view key, const std::vector<TemplateValue>& values);

/// Prints the text of `key` as it stands on the host's command line.
void print(std::string_view key);

/// Prints the text of `key` filled with `values`.
void print(std::string_view key, const std::vector<TemplateValue>& values);

}  // namespace vexo_xyz_impl
