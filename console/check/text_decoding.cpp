#include "console/check/text_decoding.h"

#include <charconv>
#include <optional>

#include <iconv.h>

#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

namespace text = vexo_xyz_impl::text;

std::optional<char32_t> number_in(std::string_view digits, std::size_t count, int base) {
  unsigned value = 0;
  const char* const end = digits.data() + std::min(count, digits.size());
  const auto [stop, fault] = std::from_chars(digits.data(), end, value, base);
  if (fault != std::errc() || stop != digits.data() + count) return std::nullopt;
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

class TextDecoding::Converter {
 public:
  explicit Converter(std::string_view code_page) : library_(iconv_open("UTF-8", library_name(code_page).c_str())) {}
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() {
    if (is_known()) iconv_close(library_);
  }

  // Of a code page that is not known, and of a text that is none in it, the bytes as they stand.
  [[nodiscard]] std::string converted(std::string_view bytes) const {
    constexpr std::size_t kMostBytes = 4;  // of a letter, for one that was at least one
    if (!is_known()) return std::string(bytes);
    std::string from(bytes);
    std::string to(bytes.size() * kMostBytes, '\0');
    char* in = from.data();
    char* out = to.data();
    std::size_t left = from.size();
    std::size_t room = to.size();
    iconv(library_, nullptr, nullptr, nullptr, nullptr);
    if (iconv(library_, &in, &left, &out, &room) == static_cast<std::size_t>(-1)) return from;
    to.resize(to.size() - room);
    return to;
  }

 private:
  // NOLINTNEXTLINE(performance-no-int-to-ptr,cppcoreguidelines-pro-type-cstyle-cast): as the library says failure
  [[nodiscard]] bool is_known() const { return library_ != (iconv_t)-1; }

  iconv_t library_;
};

TextDecoding::TextDecoding(const TextEncoding& encoding) {
  if (!encoding.code_page().empty()) converter_ = std::make_shared<const Converter>(encoding.code_page());
}

std::string TextDecoding::operator()(std::string_view spelled) const {
  return without_codes(valid(converter_ == nullptr ? std::string(spelled) : converter_->converted(spelled)));
}

}  // namespace console
