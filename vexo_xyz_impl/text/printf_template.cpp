#include "vexo_xyz_impl/text/printf_template.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include <fmt/format.h>

#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl::text {
namespace {

constexpr std::size_t kWidest = 500;  // more would be a slip; {fmt} has no more decimals either
constexpr std::size_t kUsualPrecision = 6;

struct Placeholder {
  std::string_view flags;
  std::size_t width = 0;
  std::optional<std::size_t> precision;
  char conversion = '\0';

  [[nodiscard]] bool has(char flag) const { return flags.find(flag) != std::string_view::npos; }
};

// ---- Reading a placeholder: each step takes its part from the front of `rest`.

std::string_view take_any_of(std::string_view& rest, std::string_view characters) {
  const std::size_t size = std::min(rest.find_first_not_of(characters), rest.size());
  const std::string_view taken = rest.substr(0, size);
  rest.remove_prefix(size);
  return taken;
}

// 0 without digits, as a precision of nothing means; empty when it is too large.
std::optional<std::size_t> take_count(std::string_view& rest) {
  const std::string_view digits = take_any_of(rest, "0123456789");
  std::size_t count = 0;
  const auto error = std::from_chars(digits.data(), digits.data() + digits.size(), count).ec;
  if (error == std::errc::result_out_of_range || count > kWidest) return std::nullopt;
  return count;
}

void skip_length(std::string_view& rest) {
  for (const std::string_view length : {"hh", "ll", "h", "l", "L", "q", "j", "z", "t"}) {
    if (!rest.starts_with(length)) continue;
    rest.remove_prefix(length.size());
    return;
  }
}

std::optional<Placeholder> take_placeholder(std::string_view& rest) {
  Placeholder placeholder;
  placeholder.flags = take_any_of(rest, "-+ #0");
  const auto width = take_count(rest);
  if (!width) return std::nullopt;
  placeholder.width = *width;
  if (rest.starts_with('.')) {
    rest.remove_prefix(1);
    placeholder.precision = take_count(rest);
    if (!placeholder.precision) return std::nullopt;
  }
  skip_length(rest);
  if (rest.empty()) return std::nullopt;
  placeholder.conversion = rest.front();
  rest.remove_prefix(1);
  return placeholder;
}

// ---- Showing a value.

std::size_t characters_of(std::string_view utf8) {
  std::size_t count = 0;
  for (; !utf8.empty(); ++count) utf8.remove_prefix(first_characters(utf8, 1).size());
  return count;
}

// Zeros stand between the sign, with what else comes before a number, and the number; blanks around both.
std::string padded(const Placeholder& placeholder, std::string_view sign, std::string_view body, bool may_have_zeros) {
  const std::size_t size = placeholder.width == 0 ? 0 : sign.size() + characters_of(body);
  const std::size_t missing = placeholder.width - std::min(placeholder.width, size);
  const bool left = placeholder.has('-');
  const bool zeros = may_have_zeros && placeholder.has('0') && !left;
  std::string shown(sign);
  if (zeros) shown.append(missing, '0');
  shown += body;
  shown.insert(left ? shown.size() : 0, zeros ? 0 : missing, ' ');
  return shown;
}

std::string sign_of(const Placeholder& placeholder, bool negative) {
  if (negative) return "-";
  if (placeholder.has('+')) return "+";
  return placeholder.has(' ') ? " " : "";
}

// A whole number, or for a decimal one what a real has before its mark.
std::optional<long long> whole_of(const TemplateValue& value, bool decimal) {
  if (const auto* whole = std::get_if<long long>(&value)) return *whole;
  const auto* real = std::get_if<double>(&value);
  constexpr double kBeyond = 0x1p63;
  if (real == nullptr || !decimal || !(std::abs(*real) < kBeyond)) return std::nullopt;
  return static_cast<long long>(*real);
}

std::optional<std::string> shown_whole(const Placeholder& placeholder, const TemplateValue& value) {
  const char base = placeholder.conversion;
  const bool decimal = base != 'x' && base != 'X' && base != 'o';
  const auto whole = whole_of(value, decimal);
  if (!whole) return std::nullopt;
  const bool negative = *whole < 0;
  const auto bits = static_cast<std::uint64_t>(*whole);
  const std::uint64_t magnitude = negative ? 0 - bits : bits;
  std::string digits = base == 'x'   ? fmt::format("{:x}", magnitude)
                       : base == 'X' ? fmt::format("{:X}", magnitude)
                       : base == 'o' ? fmt::format("{:o}", magnitude)
                                     : fmt::format("{}", magnitude);
  const std::size_t precision = placeholder.precision.value_or(0);
  if (digits.size() < precision) digits.insert(0, precision - digits.size(), '0');
  std::string sign = sign_of(placeholder, negative);
  if (placeholder.has('#') && !decimal) sign += {'0', base};
  return padded(placeholder, sign, digits, true);
}

std::optional<std::string> shown_real(const Placeholder& placeholder, const TemplateValue& value) {
  double real = 0.0;
  if (const auto* whole = std::get_if<long long>(&value)) {
    real = static_cast<double>(*whole);
  } else if (const auto* given = std::get_if<double>(&value)) {
    real = *given;
  } else {
    return std::nullopt;
  }
  const std::string form = std::string(placeholder.has('#') ? "{:#.{}" : "{:.{}") + placeholder.conversion + "}";
  const std::string digits =
      fmt::format(fmt::runtime(form), std::abs(real), placeholder.precision.value_or(kUsualPrecision));
  return padded(placeholder, sign_of(placeholder, std::signbit(real) && !std::isnan(real)), digits, true);
}

std::optional<std::string> shown_character(const Placeholder& placeholder, const TemplateValue& value) {
  std::string character;
  if (const auto* code_point = std::get_if<long long>(&value)) {
    const bool surrogate = *code_point >= 0xD800 && *code_point <= 0xDFFF;
    if (*code_point < 0 || *code_point > 0x10FFFF || surrogate) return std::nullopt;
    append(character, static_cast<char32_t>(*code_point));
  } else if (const auto* given = std::get_if<std::string_view>(&value)) {
    character = *given;
  }
  if (characters_of(character) != 1) return std::nullopt;
  return padded(placeholder, "", character, false);
}

std::string shown_text(const Placeholder& placeholder, const TemplateValue& value) {
  std::string shown = std::visit([](const auto& any) { return fmt::format("{}", any); }, value);
  if (std::holds_alternative<double>(value) && shown.find_first_of(".en") == std::string::npos) shown += ".0";
  const std::string_view cut = placeholder.precision ? first_characters(shown, *placeholder.precision) : shown;
  return padded(placeholder, "", cut, false);
}

std::optional<std::string> shown(const Placeholder& placeholder, const TemplateValue& value) {
  switch (placeholder.conversion) {
    case 'd':
    case 'i':
    case 'u':
    case 'x':
    case 'X':
    case 'o':
      return shown_whole(placeholder, value);
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
      return shown_real(placeholder, value);
    case 'c':
      return shown_character(placeholder, value);
    case 's':
      return shown_text(placeholder, value);
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<std::string> try_fill(std::string_view tpl, const std::vector<TemplateValue>& values) {
  std::string filled;
  auto value = values.begin();
  while (true) {
    const std::size_t mark = std::min(tpl.find('%'), tpl.size());
    filled += tpl.substr(0, mark);
    tpl.remove_prefix(mark);
    if (tpl.empty()) break;
    tpl.remove_prefix(1);
    if (tpl.starts_with('%')) {
      filled += '%';
      tpl.remove_prefix(1);
      continue;
    }
    const auto placeholder = take_placeholder(tpl);
    if (!placeholder || value == values.end()) return std::nullopt;
    const auto text = shown(*placeholder, *value++);
    if (!text) return std::nullopt;
    filled += *text;
  }
  if (value != values.end()) return std::nullopt;
  return filled;
}

}  // namespace vexo_xyz_impl::text
