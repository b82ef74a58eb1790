#include "vexo_xyz_impl/table/literal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <limits>
#include <system_error>

#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

constexpr char kWhiteSpace = ' ';  // any but blanks and no-break spaces, which are left out
constexpr char kEnd = '$';
constexpr char kOther = '?';

// What a block of bytes holds; looked at without a branch, many bytes at a time.
constexpr std::size_t kBlock = 64;
struct Block {
  bool white_space;  // of ASCII, and nothing else
  bool others;       // than digits and blanks
  bool not_zero;     // a digit is not
  unsigned digits;
};

Block look_at(const char* block) {
  unsigned char white_space = 1;
  unsigned char others = 0;
  unsigned char not_zero = 0;
  unsigned char digits = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    const auto byte = static_cast<unsigned char>(block[i]);
    const auto digit = static_cast<unsigned char>(static_cast<unsigned char>(byte - '0') < 10);
    const auto blank = static_cast<unsigned char>(byte == ' ');
    white_space &= static_cast<unsigned char>(blank | (static_cast<unsigned char>(byte - '\t') < 5));
    others |= static_cast<unsigned char>((digit | blank) == 0);
    not_zero |= static_cast<unsigned char>(digit & (byte != '0'));
    digits = static_cast<unsigned char>(digits + digit);
  }
  return {white_space != 0, others != 0, not_zero != 0, digits};
}

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

  // Leaves repetitions of the present character out, thousands at a time. A text may be nothing else.
  void skip_repetitions() {
    constexpr std::size_t kStep = 3072;  // whole characters, whether one takes one byte or four
    while (tok_.size() - at_ >= kStep + bytes_ && std::memcmp(&tok_[at_], &tok_[at_ + bytes_], kStep) == 0)
      at_ += kStep;
  }

  // Leaves whole blocks out for as long as they may be left out.
  template <class MayBe>
  void skip_blocks(MayBe may_be_left_out) {
    while (tok_.size() - at_ >= bytes_ + kBlock && may_be_left_out(&tok_[at_ + bytes_])) at_ += kBlock;
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
      has_rest_ = has_rest_ || digit != '0';
      characters.skip_blocks([&](const char* block) {
        const Block found = look_at(block);
        if (found.others || (leading_zero && found.not_zero)) return false;
        count += found.digits;
        has_rest_ = has_rest_ || found.not_zero;
        return true;
      });
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
      if (exponent != 0 && exponent != kDecisiveExponent) return;
      characters.skip_blocks([&](const char* block) {
        const Block found = look_at(block);
        return !found.others && (exponent != 0 || !found.not_zero);
      });
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
    characters.skip_blocks([](const char* block) { return look_at(block).white_space; });
    characters.advance();
  }
}

// Long texts are seldom numbers, and most of them tell at once.
bool may_end_number(char c) {
  return is_digit(c) || c < ' ' || c > '~' || std::string_view(" .,fFnNyY").find(c) != std::string_view::npos;
}

}  // namespace

std::optional<double> parse_literal(std::string_view tok) {
  if (tok.empty() || !may_end_number(tok.back())) return std::nullopt;
  Characters characters(tok);
  skip_white_space(characters);
  const bool negative = characters.advance_over('-');
  if (!negative) characters.advance_over('+');
  const auto value = read_unsigned(characters);
  skip_white_space(characters);
  if (!value || characters.now() != kEnd) return std::nullopt;
  return negative ? -*value : *value;
}

}  // namespace vexo_xyz_impl
