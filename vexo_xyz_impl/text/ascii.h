// Letter case of the letters A to Z, which is all that keywords, codes and literals need; no locale is looked at.
#pragma once

namespace vexo_xyz_impl::text {

[[nodiscard]] constexpr char ascii_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
[[nodiscard]] constexpr char ascii_upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace vexo_xyz_impl::text
