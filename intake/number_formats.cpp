#include "intake/number_formats.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <map>
#include <utility>

#include "intake/xml.h"
#include "vexo_xyz_impl/text/ascii.h"

namespace intake {
namespace {

using vexo_xyz_impl::text::ascii_lower;

template <typename Number>
std::optional<Number> whole(std::string_view text) {
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

// The formats that a number names and no code: those of all countries, then those of East Asia.
ShownAs built_in(unsigned id) {
  const auto within = [id](unsigned first, unsigned last) { return id >= first && id <= last; };
  if (within(14, 17) || within(27, 31) || id == 36 || within(50, 54) || within(57, 58)) return ShownAs::date;
  if (within(18, 21) || within(32, 35) || within(55, 56) || id == 45 || id == 47) return ShownAs::time;
  if (id == 22) return ShownAs::date_time;
  return id == 46 ? ShownAs::elapsed_time : ShownAs::number;
}

// What a code says of its first section, that of positive numbers, without quoted and escaped letters.
struct Letters {
  bool day_or_year = false, month_or_minute = false, hour_or_second = false, elapsed = false, digit_first = false;
};

Letters letters_of(std::string_view code) {
  Letters letters;
  for (std::size_t i = 0; i < code.size() && code[i] != ';'; ++i) {
    const char c = ascii_lower(code[i]);
    if (c == '"') {
      i = code.find('"', i + 1);
    } else if (c == '[') {
      const char first = i + 1 < code.size() ? ascii_lower(code[i + 1]) : ']';
      i = code.find(']', i);
      letters.elapsed |= i != std::string_view::npos && (first == 'h' || first == 'm' || first == 's') &&
                         ascii_lower(code[i - 1]) == first;
    } else if (c == '\\' || c == '_' || c == '*') {
      ++i;
    } else {
      const bool none_yet = !letters.day_or_year && !letters.month_or_minute && !letters.hour_or_second;
      letters.digit_first |= (c == '0' || c == '#' || c == '?') && none_yet && !letters.elapsed;
      letters.day_or_year |= c == 'd' || c == 'y';
      letters.month_or_minute |= c == 'm';
      letters.hour_or_second |= c == 'h' || c == 's';
    }
    if (i == std::string_view::npos) break;
  }
  return letters;
}

class StyleSheet final : public XmlHandler {
 public:
  int start(int parent, const XmlElement& element) override {
    if (parent == kDocument) return kSheet;
    if (parent == kSheet && element.name == "numFmts") return kFormats;
    if (parent == kSheet && element.name == "cellXfs") return kStyles;
    const auto id = whole<unsigned>(element.attributes["numFmtId"]);
    if (parent == kFormats && id) codes_[*id] = shown_as(element.attributes["formatCode"]);
    if (parent == kStyles) {
      const auto own = codes_.find(id.value_or(0));
      styles.push_back(own != codes_.end() ? own->second : built_in(id.value_or(0)));
    }
    return kIgnored;
  }

  std::vector<ShownAs> styles;

 private:
  enum { kSheet = 1, kFormats, kStyles };

  std::map<unsigned, ShownAs> codes_;
};

template <typename... Numbers>
std::string filled(const char* form, Numbers... numbers) {
  std::array<char, 64> text{};
  const int size =
      std::snprintf(text.data(), text.size(), form, numbers...);  // NOLINT(cppcoreguidelines-pro-type-vararg)
  return {text.data(), static_cast<std::size_t>(size)};
}

std::string calendar_text(std::int64_t day, bool from_1904) {
  using std::chrono::days, std::chrono::sys_days, std::chrono::year_month_day;
  constexpr sys_days kOf1900(std::chrono::year(1899) / 12 / 30);
  constexpr sys_days kOf1904(std::chrono::year(1904) / 1 / 1);
  constexpr std::int64_t kNoDay = 60;  // the calendar from 1900 has a February 29, so that days before it are one off
  if (!from_1904 && day == kNoDay) return "1900-02-29";
  if (!from_1904 && day < kNoDay) ++day;
  const year_month_day date((from_1904 ? kOf1904 : kOf1900) + days(day));
  return filled("%04d-%02u-%02u", static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()));
}

std::string clock_text(std::int64_t seconds) {
  return filled("%02lld:%02lld:%02lld", static_cast<long long>(seconds / 3600),
                static_cast<long long>(seconds / 60 % 60), static_cast<long long>(seconds % 60));
}

}  // namespace

ShownAs shown_as(std::string_view format_code) {
  const Letters letters = letters_of(format_code);
  if (letters.digit_first) return ShownAs::number;
  if (letters.elapsed) return ShownAs::elapsed_time;
  const bool date = letters.day_or_year || (letters.month_or_minute && !letters.hour_or_second);
  if (letters.hour_or_second) return date ? ShownAs::date_time : ShownAs::time;
  return date ? ShownAs::date : ShownAs::number;
}

std::optional<std::string> date_text(double days, ShownAs form, bool from_1904) {
  constexpr double kLastDay = 2958466;  // the end of the year 9999
  constexpr std::int64_t kDay = 86400;
  if (!(days >= 0 && days < kLastDay) || form == ShownAs::number) return std::nullopt;
  const auto seconds = static_cast<std::int64_t>(std::llround(days * static_cast<double>(kDay)));
  if (form == ShownAs::elapsed_time) return clock_text(seconds);
  if (form == ShownAs::time) return clock_text(seconds % kDay);
  std::string date = calendar_text(form == ShownAs::date ? static_cast<std::int64_t>(days) : seconds / kDay, from_1904);
  return form == ShownAs::date ? date : date + ' ' + clock_text(seconds % kDay);
}

NumberFormats::NumberFormats(const std::string& member, std::span<const char> xml) {
  StyleSheet sheet;
  parse_xml(member, xml, sheet);
  styles_ = std::move(sheet.styles);
}

ShownAs NumberFormats::of_style(std::string_view style) const {
  if (style.empty()) return styles_.empty() ? ShownAs::number : styles_.front();
  const auto index = whole<std::size_t>(style);
  return index && *index < styles_.size() ? styles_[*index] : ShownAs::number;
}

bool NumberFormats::any_dates() const {
  return std::any_of(styles_.begin(), styles_.end(), [](ShownAs form) { return form != ShownAs::number; });
}

}  // namespace intake
