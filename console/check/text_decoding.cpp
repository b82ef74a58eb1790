#include "console/check/text_decoding.h"

#include <charconv>
#include <optional>

#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

namespace text = vexo_xyz_impl::text;

std::optional<char32_t> number_in(std::string_view digits, std::size_t count, int base) {
  if (digits.size() < count) return std::nullopt;
  unsigned value = 0;
  const char* const end = digits.data() + count;
  const auto [stop, fault] = std::from_chars(digits.data(), end, value, base);
  if (fault != std::errc() || stop != end) return std::nullopt;
  return static_cast<char32_t>(value);
}

// The letter of \U+nnnn at the beginning of a text, by one number or by the two halves of UTF-16.
struct Numbered {
  char32_t letter;
  std::size_t size;
};
std::optional<Numbered> numbered(std::string_view spelled) {
  constexpr std::size_t kSize = 7;
  const auto unit_at = [spelled](std::size_t at) -> std::optional<char32_t> {
    if (spelled.size() < at + kSize || spelled.substr(at, 3) != "\\U+") return std::nullopt;
    return number_in(spelled.substr(at + 3), 4, 16);
  };
  const auto unit = unit_at(0);
  if (!unit) return std::nullopt;
  if (*unit < 0xD800 || *unit > 0xDFFF) return Numbered{*unit, kSize};
  const auto second = *unit < 0xDC00 ? unit_at(kSize) : std::nullopt;
  if (!second || *second < 0xDC00 || *second > 0xDFFF) return Numbered{U'\uFFFD', kSize};
  return Numbered{0x10000 + ((*unit - 0xD800) << 10U) + (*second - 0xDC00), 2 * kSize};
}

std::string without_codes(std::string_view spelled) {
  constexpr std::size_t kPercentCode = 5;
  std::string plain;
  while (!spelled.empty()) {
    std::size_t size = 1;
    if (const auto letter = numbered(spelled)) {
      text::append(plain, letter->letter);
      size = letter->size;
    } else if (const auto number = spelled.starts_with("%%") ? number_in(spelled.substr(2), 3, 10) : std::nullopt) {
      text::append(plain, *number);
      size = kPercentCode;
    } else if (spelled.starts_with("^ ")) {
      plain += '^';
      size = 2;
    } else {
      plain += spelled.front();
    }
    spelled.remove_prefix(size);
  }
  return plain;
}

std::string valid(std::string_view bytes) {
  if (text::is_valid(bytes)) return std::string(bytes);
  const auto replaced = text::with_replacements(bytes, text::size_with_replacements(bytes));
  return {replaced.begin(), replaced.end()};
}

}  // namespace

TextDecoding::TextDecoding(const TextEncoding& encoding) {
  if (!encoding.code_page().empty()) to_utf8_ = std::make_shared<const Conversion>("UTF-8", encoding.code_page());
}

std::string TextDecoding::operator()(std::string_view spelled) const {
  const auto converted = to_utf8_ == nullptr ? std::nullopt : (*to_utf8_)(spelled);
  return without_codes(valid(converted ? *converted : spelled));
}

}  // namespace console
