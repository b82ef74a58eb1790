// Letter case of the letters A to Z, which is all that keywords, codes and literals need; no locale is looked at.
#pragma once

#include <algorithm>
#include <string_view>

namespace vexo_xyz_impl::text {

[[nodiscard]] constexpr char ascii_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
[[nodiscard]] constexpr char ascii_upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

/// Whether the two are the same but for letter case.
[[nodiscard]] constexpr bool equal_ascii_case(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return ascii_lower(x) == ascii_lower(y); });
}

/// Whether the text begins so, letter case aside.
[[nodiscard]] constexpr bool starts_with_ascii_case(std::string_view text, std::string_view beginning) {
  return equal_ascii_case(text.substr(0, beginning.size()), beginning);
}

}  // namespace vexo_xyz_impl::text
