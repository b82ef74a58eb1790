// UTF-8 as the module's one encoding of text: decoding by code points, validity, white space.
//
// White space is the Unicode property White_Space, digits are the general category Nd. A "character" that is
// counted or cut is a code point. Everything here works on views and allocates nothing unless it returns a text of its
// own.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexo_xyz_impl::text {

/// A code point and the number of bytes it takes.
struct CodePoint {
  char32_t value;
  std::size_t bytes;
};

/// The code point that starts at `at`; empty where no valid UTF-8 sequence starts (surrogates, overlong forms and
/// values above U+10FFFF are invalid). `at` must lie inside `utf8`.
[[nodiscard]] std::optional<CodePoint> decode(std::string_view utf8, std::size_t at);

/// Whether all of `bytes` is valid UTF-8.
[[nodiscard]] bool is_valid(std::string_view bytes);

/// How many bytes `with_replacements` makes of `bytes`.
[[nodiscard]] std::size_t size_with_replacements(std::string_view bytes);

/// The text with one U+FFFD for each maximal part of an invalid sequence, as the Unicode standard recommends; `size` is
/// what `size_with_replacements` said of it.
[[nodiscard]] std::vector<char> with_replacements(std::string_view bytes, std::size_t size);

/// Appends one code point as UTF-8.
void append(std::string& utf8, char32_t code_point);

/// The first `count` characters of a valid text.
[[nodiscard]] std::string_view first_characters(std::string_view utf8, std::size_t count);

/// Whether the code point has the property White_Space.
[[nodiscard]] bool is_white_space(char32_t code_point);

/// Bytes of the white-space character that starts at `at`, 0 when none does.
[[nodiscard]] std::size_t white_space_at(std::string_view utf8, std::size_t at);

/// What `trim` does where an end is not visible ASCII.
[[nodiscard]] std::string_view trim_white_space(std::string_view utf8);

/// The text without leading and trailing white space; bytes that are no UTF-8, as a path may have, stay.
[[nodiscard]] inline std::string_view trim(std::string_view utf8) {
  const auto is_visible_ascii = [](char c) { return c > ' ' && c <= '~'; };  // be char signed or not
  if (!utf8.empty() && is_visible_ascii(utf8.front()) && is_visible_ascii(utf8.back())) return utf8;  // as most are
  return trim_white_space(utf8);
}

/// Decimal value 0 to 9 of a digit of any script; empty for anything else.
[[nodiscard]] std::optional<int> digit_value(char32_t code_point);

}  // namespace vexo_xyz_impl::text
