#include "vexo_xyz_impl/table/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <system_error>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

// ---- Any token, read character by character up to the first that no number has at its place.

constexpr char kWhiteSpace = ' ';  // any but blanks and no-break spaces, which are left out
constexpr char kEnd = '$';
constexpr char kOther = '?';

// The characters of a token as its literal has them: without blanks, marks as points, letters small, digits of any
// script as those of ASCII.
class Characters {
 public:
  explicit Characters(std::string_view tok) : tok_(tok) { advance(); }

  [[nodiscard]] char now() const { return now_; }

  bool advance_over(char c) {
    if (now_ != c) return false;
    advance();
    return true;
  }

  bool advance_over(std::string_view word) {
    return std::all_of(word.begin(), word.end(), [this](char c) { return advance_over(c); });
  }

  void advance() {
    while (true) {
      at_ += bytes_;
      if (at_ == tok_.size()) {
        bytes_ = 0;
        now_ = kEnd;
        return;
      }
      bytes_ = 1;
      const char c = tok_[at_];
      if (is_digit(c)) {
        now_ = c;
        return;
      }
      if (c == ' ') {
        skip_repetitions();
      } else if (read_other(c)) {
        return;
      }
    }
  }

  // Leaves repetitions of the present character out, thousands at a time, and counts them. A text may be nothing else.
  long long skip_repetitions() {
    constexpr std::size_t kStep = 3072;  // whole characters, whether one takes one byte or four
    const std::size_t start = at_;
    while (tok_.size() - at_ >= kStep + bytes_ && std::memcmp(&tok_[at_], &tok_[at_ + bytes_], kStep) == 0)
      at_ += kStep;
    return static_cast<long long>((at_ - start) / bytes_);
  }

 private:
  // False for what is left out.
  bool read_other(char c) {
    const auto code_point = text::decode(tok_, at_);
    now_ = kOther;
    if (!code_point) return true;
    bytes_ = code_point->bytes;
    if (code_point->value == U'\u00A0') {
      skip_repetitions();
      return false;
    }
    if (c == ',') {
      now_ = '.';
    } else if ((c >= 'a' && c <= 'z') || std::string_view("+-._").find(c) != std::string_view::npos) {
      now_ = c;
    } else if (c >= 'A' && c <= 'Z') {
      now_ = text::ascii_lower(c);
    } else if (text::is_white_space(code_point->value)) {
      now_ = kWhiteSpace;
    } else if (const auto digit = text::digit_value(code_point->value)) {
      now_ = static_cast<char>('0' + *digit);
    }
    return true;
  }

  std::string_view tok_;
  std::size_t at_ = 0;
  std::size_t bytes_ = 0;  // of the present character
  char now_ = kEnd;
};

// Gives digits with single underscores between them to `take`; false when an underscore stands elsewhere.
template <class Take>
bool read_digits(Characters& characters, Take take) {
  while (is_digit(characters.now())) {
    take(characters.now());
    characters.advance();
    if (characters.advance_over('_') && !is_digit(characters.now())) return false;
  }
  return true;
}

// 0.DIGITS times a power of ten.
class Decimal {  // NOLINT(cppcoreguidelines-pro-type-member-init): of the digits only what is written is read
 public:
  // Reads digits, a mark among them, and an exponent; false when they are not sound.
  bool read(Characters& characters) {
    const auto add_digit = [&](char digit) { add(digit, characters); };
    if (!read_digits(characters, add_digit)) return false;
    behind_mark_ = characters.advance_over('.');
    if (behind_mark_ && !read_digits(characters, add_digit)) return false;
    return has_digits_ && (!characters.advance_over('e') || read_exponent(characters));
  }

  double value() {
    if (size_ == 0) return 0.0;
    if (has_rest_) digits_[size_++] = '1';
    const auto last_exponent = exponent_ - static_cast<long long>(size_);
    digits_[size_] = 'e';
    const char* end = std::to_chars(&digits_[size_ + 1], digits_.data() + digits_.size(), last_exponent).ptr;
    double value = 0.0;
    const auto error = std::from_chars(digits_.data(), end, value).ec;
    if (error == std::errc::result_out_of_range) return exponent_ > 0 ? kInfinity : 0.0;
    return value;
  }

 private:
  static constexpr std::size_t kDecisiveDigits = 800;  // what stands behind them tells no more than that it is there
  static constexpr long long kDecisiveExponent = 1LL << 56U;  // no token has digits enough to make up for it

  void add(char digit, Characters& characters) {
    has_digits_ = true;
    const bool leading_zero = size_ == 0 && digit == '0';
    long long count = 1;
    if (!leading_zero && size_ < kDecisiveDigits) {
      digits_[size_++] = digit;
    } else {
      count += characters.skip_repetitions();
      has_rest_ = has_rest_ || digit != '0';
    }
    if (!leading_zero && !behind_mark_) exponent_ += count;
    if (leading_zero && behind_mark_) exponent_ -= count;
  }

  bool read_exponent(Characters& characters) {
    const bool negative = characters.advance_over('-');
    if (!negative) characters.advance_over('+');
    if (!is_digit(characters.now())) return false;
    long long exponent = 0;
    const bool sound = read_digits(characters, [&](char digit) {
      exponent = std::min(10 * exponent + (digit - '0'), kDecisiveExponent);
      if (exponent == 0 || exponent == kDecisiveExponent) characters.skip_repetitions();
    });
    exponent_ += negative ? -exponent : exponent;
    return sound;
  }

  std::array<char, kDecisiveDigits + 32> digits_;  // with room for a rest and an exponent
  std::size_t size_ = 0;
  bool has_digits_ = false;
  bool has_rest_ = false;
  bool behind_mark_ = false;
  long long exponent_ = 0;
};

std::optional<double> read_unsigned(Characters& characters) {
  if (characters.advance_over('n')) {
    if (!characters.advance_over("an")) return std::nullopt;
    return std::numeric_limits<double>::quiet_NaN();
  }
  if (characters.advance_over('i')) {
    if (!characters.advance_over("nf")) return std::nullopt;
    if (characters.now() == 'i' && !characters.advance_over("inity")) return std::nullopt;
    return kInfinity;
  }
  Decimal decimal;
  if (!decimal.read(characters)) return std::nullopt;
  return decimal.value();
}

void skip_white_space(Characters& characters) {
  while (characters.now() == kWhiteSpace) {
    characters.skip_repetitions();
    characters.advance();
  }
}

std::optional<double> parse_general(std::string_view tok) {
  Characters characters(tok);
  skip_white_space(characters);
  const bool negative = characters.advance_over('-');
  if (!negative) characters.advance_over('+');
  const auto value = read_unsigned(characters);
  skip_white_space(characters);
  if (!value || characters.now() != kEnd) return std::nullopt;
  return negative ? -*value : *value;
}

// ---- Short tokens of ASCII digits, blanks, a mark and an exponent, which is what most cells hold.

// So few digits and the power of ten behind their mark are exact in a double: one division rounds correctly.
constexpr std::size_t kExactDigits = 15;
constexpr std::array kPowersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

}  // namespace

std::optional<double> parse_number(std::string_view tok) {
  std::array<char, 64> literal;  // NOLINT(cppcoreguidelines-pro-type-member-init): only what is written is read
  if (tok.size() > literal.size()) return parse_general(tok);
  char* end = literal.data();
  bool is_signed = false;
  bool negative = false;
  bool plain = true;
  std::uint64_t whole = 0;
  std::size_t digits = 0;
  std::size_t marks = 0;
  std::size_t behind_mark = 0;
  for (const char c : tok) {
    if (is_digit(c)) {
      *end++ = c;
      whole = 10 * whole + static_cast<std::uint64_t>(c - '0');
      ++digits;
      behind_mark += marks;
    } else if (c == ',' || c == '.') {
      *end++ = '.';
      ++marks;
    } else if (c == ' ') {
      continue;
    } else if (end == literal.data() && !is_signed && (c == '-' || c == '+')) {
      is_signed = true;
      negative = c == '-';
    } else if (end != literal.data() && c > ' ' && c <= '~' && c != '_') {
      *end++ = c;
      plain = false;
    } else {
      return parse_general(tok);
    }
  }
  double value = 0.0;
  if (plain && digits > 0 && digits <= kExactDigits && marks <= 1) {
    value = static_cast<double>(static_cast<std::int64_t>(whole)) / kPowersOfTen[behind_mark];
  } else {
    const auto [stopped, error] = std::from_chars(literal.data(), end, value);
    if (error == std::errc::result_out_of_range) return parse_general(tok);
    if (stopped != end || error != std::errc()) return std::nullopt;
  }
  return negative ? -value : value;
}

double _num(std::string_view tok) {
  if (const auto number = parse_number(tok)) return *number;
  throw ValueError("not a number: '" + std::string(text::first_characters(tok, 40)) + "'");
}

bool _czy_liczba(std::string_view tok) { return parse_number(tok).has_value(); }

}  // namespace vexo_xyz_impl
