#include "intake/cell_number.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

namespace text = vexo_xyz_impl::text;

constexpr std::size_t kSurelyAValue = 15;  // digits before the mark; with no more it is less than the next
constexpr double kNoValue = 1e15;          // what is as large, 1E31 mostly, stands for a value that is missing
constexpr std::string_view kMinus = "\xE2\x88\x92";

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::size_t digits_at(std::string_view cell, std::size_t at) {
  std::size_t count = 0;
  while (at + count < cell.size() && is_digit(cell[at + count])) ++count;
  return count;
}

// Bytes of what may part thousands at `at`, the marks aside.
std::size_t gap_at(std::string_view cell, std::size_t at) {
  if (cell[at] == '\'') return 1;
  if (cell.substr(at).starts_with("\xE2\x80\x99")) return 3;  // U+2019
  return text::white_space_at(cell, at);
}

// Digits, a mark and an exponent at most: what nearly all cells are.
bool is_plain(std::string_view cell) {
  std::size_t at = !cell.empty() && (cell.front() == '-' || cell.front() == '+') ? 1 : 0;
  bool mark = false;
  std::size_t digits = 0;
  std::size_t whole = 0;
  for (; at < cell.size(); ++at) {
    if (is_digit(cell[at])) {
      ++digits;
      whole += mark ? 0 : 1;
    } else if (cell[at] == '.' && !mark) {
      mark = true;
    } else {
      return false;
    }
  }
  return digits > 0 && whole <= kSurelyAValue;
}

// Whether `mark` comes again, so that it parts thousands.
bool parts_thousands(std::string_view cell, std::size_t at) {
  const char mark = cell[at];
  const char other = mark == ',' ? '.' : ',';
  return cell.find(mark, at + 1) != std::string_view::npos || cell.find(other, at + 1) != std::string_view::npos;
}

// Nothing is kept of what is spelled: for those who only ask what it is.
struct Nowhere {
  void append(std::string_view /*digits*/) {}
};

// Spells the number part by part; on NumberForm::none some of it may have been appended.
template <class Out>
NumberForm spell(Out& out, std::string_view cell) {
  std::size_t at = 0;
  if (cell.starts_with(kMinus)) {
    out.append("-");
    at = kMinus.size();
  } else if (!cell.empty() && (cell.front() == '-' || cell.front() == '+')) {
    out.append(cell.substr(0, 1));
    at = 1;
  }
  std::size_t count = digits_at(cell, at);
  out.append(cell.substr(at, count));
  std::size_t all = count;
  at += count;
  char grouping = '\0';
  while (count > 0 && at < cell.size()) {
    const bool is_mark = cell[at] == ',' || cell[at] == '.';
    const std::size_t gap = is_mark ? (parts_thousands(cell, at) ? 1 : 0) : gap_at(cell, at);
    if (gap == 0) break;
    if (is_mark) grouping = cell[at];
    if (all > 3 && all == count) return NumberForm::none;  // the first group has at most three
    count = digits_at(cell, at + gap);
    if (count != 3) return NumberForm::none;
    out.append(cell.substr(at + gap, count));
    at += gap + count;
    all += count;
  }
  NumberForm form = NumberForm::whole;
  if (at < cell.size() && (cell[at] == '.' || cell[at] == ',') && cell[at] != grouping) {
    form = cell[at] == '.' ? NumberForm::point : NumberForm::comma;
    const std::size_t fraction = digits_at(cell, at + 1);
    out.append(".");
    out.append(cell.substr(at + 1, fraction));
    all += fraction;
    at += 1 + fraction;
  }
  if (all == 0) return NumberForm::none;
  if (at < cell.size() && (cell[at] == 'e' || cell[at] == 'E')) {
    const std::size_t sign = at + 1 < cell.size() && (cell[at + 1] == '-' || cell[at + 1] == '+') ? 1 : 0;
    const std::size_t exponent = digits_at(cell, at + 1 + sign);
    if (exponent == 0) return NumberForm::none;
    out.append(cell.substr(at, 1 + sign + exponent));
    at += 1 + sign + exponent;
  }
  return at == cell.size() ? form : NumberForm::none;
}

// Reads an angle part by part, and counts what tells it from other texts.
class Angle {
 public:
  explicit Angle(std::string_view rest) : rest_(rest) {}

  bool is_one() {
    const bool leads = take_hemisphere();
    if (!take_any({kMinus})) take_any({"-", "+"});
    while (parts_ < 3 && take_part()) {
    }
    const bool hemisphere = leads || take_hemisphere();
    if (parts_ == 0 || !rest_.empty() || !is_sized_) return false;
    if (has_degrees_) return true;
    if (hemisphere) return parts_ > 1 || decimals_ > 0;
    return parts_ == 3 && (signs_ >= 2 || (aligned_ && (dashes_ == 2 || (blanks_ == 2 && decimals_ > 0))));
  }

 private:
  bool take_any(std::initializer_list<std::string_view> signs) {
    const auto* const sign =
        std::find_if(signs.begin(), signs.end(), [&](auto each) { return rest_.starts_with(each); });
    if (sign == signs.end()) return false;
    rest_.remove_prefix(sign->size());
    return true;
  }

  void skip_blanks() { rest_ = text::trim(rest_); }

  bool take_hemisphere() {
    const bool is_letter = !rest_.empty() && std::string_view("NSEWO").find(rest_.front()) != std::string_view::npos;
    if (!is_letter) return false;
    rest_.remove_prefix(1);
    skip_blanks();
    return true;
  }

  // Digits and the sign or the gap behind them.
  bool take_part() {
    const std::size_t whole = digits_at(rest_, 0);
    if (whole == 0 || whole > 3 || decimals_ > 0) return false;
    int value = 0;
    for (const char digit : rest_.substr(0, whole)) value = 10 * value + (digit - '0');
    is_sized_ &= parts_ == 0 ? value <= 360 : value < 60;
    aligned_ &= parts_ == 0 || whole == 2;
    rest_.remove_prefix(whole);
    ++parts_;
    if (take_any({".", ","})) {
      decimals_ = digits_at(rest_, 0);
      rest_.remove_prefix(decimals_);
    }
    const std::size_t before = rest_.size();
    skip_blanks();
    if (take_any({"\xC2\xB0", "\xC2\xBA", "\xCB\x9A"})) {
      has_degrees_ = true;
    } else if (take_any({"'", "\"", "\xE2\x80\xB2", "\xE2\x80\xB3", "\xE2\x80\x99", "\xE2\x80\x9D", ":"})) {
      ++signs_;
      take_any({"'"});  // twice for seconds
    } else if (digits_at(rest_, 1) > 0 && take_any({"-"})) {
      ++dashes_;
    } else if (before != rest_.size()) {
      ++blanks_;
    }
    skip_blanks();
    return true;
  }

  std::string_view rest_;
  std::size_t parts_ = 0;
  std::size_t decimals_ = 0;  // of the last part
  std::size_t signs_ = 0;     // of minutes and seconds
  std::size_t dashes_ = 0;
  std::size_t blanks_ = 0;
  bool has_degrees_ = false;
  bool is_sized_ = true;  // as degrees, minutes and seconds are
  bool aligned_ = true;   // minutes and seconds with two digits
};

}  // namespace

NumberForm number_form(std::string_view cell) {
  if (is_plain(cell)) return cell.find('.') == std::string_view::npos ? NumberForm::whole : NumberForm::point;
  Nowhere nowhere;
  return spell(nowhere, cell);
}

bool append_number(std::string& out, std::string_view cell) {
  if (is_plain(cell)) {
    out += cell;
    return true;
  }
  const std::size_t before = out.size();
  if (spell(out, cell) != NumberForm::none) {
    const auto value = vexo_xyz_impl::parse_number(std::string_view(out).substr(before));
    if (value && std::abs(*value) < kNoValue) return true;
  }
  out.resize(before);
  return false;
}

bool is_no_finite_number(std::string_view cell) {
  std::string plain;
  const bool is_spelled = spell(plain, cell) != NumberForm::none;
  const auto value = vexo_xyz_impl::parse_number(is_spelled ? std::string_view(plain) : cell);
  return value && !(std::abs(*value) < kNoValue);
}

std::size_t decimals_of(std::string_view cell) {
  const std::size_t mark = cell.find_first_of(".,");
  return mark == std::string_view::npos ? 0 : digits_at(cell, mark + 1);
}

bool is_sexagesimal(std::string_view cell) {
  if (number_form(cell) != NumberForm::none) return false;
  Angle angle(text::trim(cell));
  return angle.is_one();
}

bool is_nearly_number(std::string_view cell) {
  constexpr std::string_view kDigits = "0123456789";
  const std::size_t from = cell.find_first_of(kDigits);
  if (from == std::string_view::npos) return false;
  const std::size_t to = cell.find_last_of(kDigits) + 1;
  const NumberForm form = number_form(cell.substr(from, to - from));
  const std::string around = std::string(cell.substr(0, from)).append(cell.substr(to));
  const bool are_signs = std::none_of(
      around.begin(), around.end(), [](char c) { return text::ascii_lower(c) >= 'a' && text::ascii_lower(c) <= 'z'; });
  return are_signs && to - from < cell.size() && (form == NumberForm::point || form == NumberForm::comma);
}

std::size_t pair_break(std::string_view cell) {
  for (std::size_t at = cell.find_first_of(",; "); at != std::string_view::npos;
       at = cell.find_first_of(",; ", at + 1)) {
    const auto first = number_form(text::trim(cell.substr(0, at)));
    const auto second = number_form(text::trim(cell.substr(at + 1)));
    const auto fits = [](NumberForm form) { return form == NumberForm::whole || form == NumberForm::point; };
    if (fits(first) && fits(second)) return at;
  }
  return std::string_view::npos;
}

bool is_long_pair(std::string_view cell) {
  constexpr std::size_t kLong = 4;
  const std::size_t at = pair_break(cell);
  return at != std::string_view::npos && at >= kLong && cell.size() - at > kLong;
}

bool is_pair(std::string_view cell) {
  const std::size_t at = pair_break(cell);
  return at != std::string_view::npos && number_form(text::trim(cell.substr(0, at))) == NumberForm::point &&
         number_form(text::trim(cell.substr(at + 1))) == NumberForm::point;
}

}  // namespace intake
