#include "vexo_xyz_impl/table/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/table/literal.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

// So few digits and the power of ten behind their mark are exact in a double: one division rounds correctly.
constexpr std::size_t kExactDigits = 15;
constexpr std::array kPowersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr std::size_t kNoMark = std::numeric_limits<std::size_t>::max();

// Anything else than a few plain digits: with an exponent, with more digits, or no number at all.
std::optional<double> parse_spelled(std::string_view tok) {
  std::array<char, 64> literal;  // NOLINT(cppcoreguidelines-pro-type-member-init): only what is written is read
  if (tok.size() > literal.size()) return parse_literal(tok);
  char* end = literal.data();
  bool is_signed = false;
  bool negative = false;
  for (const char c : tok) {
    if (c == ',') {
      *end++ = '.';
    } else if (c == ' ') {
      continue;
    } else if (end == literal.data() && !is_signed && (c == '-' || c == '+')) {
      is_signed = true;
      negative = c == '-';
    } else if (c > ' ' && c <= '~' && c != '_' && (end != literal.data() || is_digit(c) || c == '.')) {
      *end++ = c;
    } else {
      return parse_literal(tok);
    }
  }
  double value = 0.0;
  const auto [stopped, error] = std::from_chars(literal.data(), end, value);
  if (error == std::errc::result_out_of_range) return parse_literal(tok);
  if (stopped != end || error != std::errc()) return std::nullopt;
  return negative ? -value : value;
}

}  // namespace

// Most cells hold a few digits with a mark, and a sign or blanks at most.
std::optional<double> parse_number(std::string_view tok) {
  std::uint64_t whole = 0;  // wraps where there are too many
  std::size_t digits = 0;
  std::size_t before_mark = kNoMark;
  bool negative = false;
  for (const char& c : tok) {
    if (is_digit(c)) {
      whole = 10 * whole + static_cast<std::uint64_t>(c - '0');
      ++digits;
    } else if ((c == ',' || c == '.') && before_mark == kNoMark) {
      before_mark = digits;
    } else if (c == '-' && &c == tok.data()) {
      negative = true;
    } else if (c != ' ') {
      return parse_spelled(tok);
    }
  }
  if (digits == 0 || digits > kExactDigits) return parse_spelled(tok);
  const double value =
      static_cast<double>(static_cast<std::int64_t>(whole)) / kPowersOfTen[digits - std::min(before_mark, digits)];
  return negative ? -value : value;
}

double _num(std::string_view tok) {
  if (const auto number = parse_number(tok)) return *number;
  throw ValueError("not a number: '" + std::string(text::first_characters(tok, 40)) + "'");
}

bool _czy_liczba(std::string_view tok) { return parse_number(tok).has_value(); }

}  // namespace vexo_xyz_impl
