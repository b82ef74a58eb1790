#include "vexo_xyz_impl/table/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
#include <string>
#include <system_error>
#include <utility>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::string_view kNoBreakSpace = "\xC2\xA0";

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }
constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool is_word(std::string_view text, std::string_view word) {
  if (text.size() != word.size()) return false;
  for (std::size_t i = 0; i < word.size(); ++i)
    if (lower(text[i]) != word[i]) return false;
  return true;
}

// A literal whose digits are sound but whose value no double holds: infinity when it is too large, zero when too
// small. The decimal exponent of the first digit that counts tells which.
double beyond_double(std::string_view unsigned_literal) {
  const std::size_t exponent_mark = unsigned_literal.find_first_of("eE");
  const std::string_view digits = unsigned_literal.substr(0, exponent_mark);
  long long exponent = 0;
  if (exponent_mark != std::string_view::npos) {
    std::string_view text = unsigned_literal.substr(exponent_mark + 1);
    const bool negative = text.starts_with('-');
    if (text.starts_with('+') || negative) text.remove_prefix(1);
    if (std::from_chars(text.data(), text.data() + text.size(), exponent).ec != std::errc())
      return negative ? 0.0 : std::numeric_limits<double>::infinity();
    // No token is so long that a larger exponent could be made up for by its digits.
    constexpr long long kDecisive = 1LL << 60U;
    exponent = std::min(exponent, kDecisive);
    if (negative) exponent = -exponent;
  }
  const auto point = static_cast<long long>(std::min(digits.find('.'), digits.size()));
  const auto first = static_cast<long long>(std::min(digits.find_first_not_of("0."), digits.size()));
  return exponent + point - first > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

// A literal of ASCII characters, without blanks and underscores around its digits, its decimal mark a point.
std::optional<double> parse_literal(std::string_view literal) {
  const bool negative = literal.starts_with('-');
  if (negative || literal.starts_with('+')) literal.remove_prefix(1);
  if (literal.empty()) return std::nullopt;
  double value = 0.0;
  if (is_digit(literal.front()) || literal.front() == '.') {
    const char* end = literal.data() + literal.size();
    const auto [stopped, error] = std::from_chars(literal.data(), end, value);
    if (stopped != end || error == std::errc::invalid_argument) return std::nullopt;
    if (error == std::errc::result_out_of_range) value = beyond_double(literal);
  } else if (is_word(literal, "inf") || is_word(literal, "infinity")) {
    value = std::numeric_limits<double>::infinity();
  } else if (is_word(literal, "nan")) {
    value = std::numeric_limits<double>::quiet_NaN();
  } else {
    return std::nullopt;
  }
  return negative ? -value : value;
}

// Takes out single underscores between digits; false when an underscore stands anywhere else.
bool remove_underscores(std::string& literal) {
  std::string kept;
  for (std::size_t i = 0; i < literal.size(); ++i) {
    if (literal[i] != '_') {
      kept.push_back(literal[i]);
    } else if (i == 0 || i + 1 == literal.size() || !is_digit(literal[i - 1]) || !is_digit(literal[i + 1])) {
      return false;
    }
  }
  literal = std::move(kept);
  return true;
}

// The general way, for tokens with anything beyond plain ASCII digits, signs, letters, blanks and commas.
std::optional<double> parse_general(std::string_view tok) {
  if (!text::is_valid(tok)) return std::nullopt;
  std::string joined;
  for (std::size_t at = 0; at < tok.size();) {
    const bool no_break_space = tok.substr(at).starts_with(kNoBreakSpace);
    if (!no_break_space && tok[at] != ' ') joined.push_back(tok[at] == ',' ? '.' : tok[at]);
    at += no_break_space ? kNoBreakSpace.size() : 1;
  }
  const std::string_view trimmed = text::trim(joined);
  std::string literal;
  for (std::size_t at = 0; at < trimmed.size();) {
    const auto code_point = text::decode(trimmed, at);
    if (!code_point) return std::nullopt;
    if (code_point->value < 0x80) {
      literal.push_back(trimmed[at]);
    } else if (const auto digit = text::digit_value(code_point->value)) {
      literal.push_back(static_cast<char>('0' + *digit));
    } else {
      return std::nullopt;
    }
    at += code_point->bytes;
  }
  if (!remove_underscores(literal)) return std::nullopt;
  return parse_literal(literal);
}

}  // namespace

std::optional<double> parse_number(std::string_view tok) {
  std::array<char, 64> literal;  // NOLINT(cppcoreguidelines-pro-type-member-init): only what is written is read
  if (tok.size() > literal.size()) return parse_general(tok);
  std::size_t size = 0;
  for (const char c : tok) {
    if (c > ' ' && c != '_') {  // char is signed: bytes beyond ASCII are negative
      literal[size++] = c == ',' ? '.' : c;
    } else if (c != ' ') {
      return parse_general(tok);
    }
  }
  return parse_literal({literal.data(), size});
}

double _num(std::string_view tok) {
  if (const auto number = parse_number(tok)) return *number;
  throw ValueError("not a number: '" + std::string(text::first_characters(tok, 40)) + "'");
}

bool _czy_liczba(std::string_view tok) { return parse_number(tok).has_value(); }

}  // namespace vexo_xyz_impl
