#include "intake/encoding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "vexo_xyz_impl/input/code_pages.h"
#include "vexo_xyz_impl/text/lines.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

namespace text = vexo_xyz_impl::text;

constexpr std::string_view kMarkLittle = "\xFF\xFE";
constexpr std::string_view kMarkBig = "\xFE\xFF";

constexpr std::size_t kSample = 4096;  // bytes that tell UTF-16 without a mark

// Digits, separators and line ends, of which tables are made, have one zero byte each in UTF-16.
bool mostly_zero(std::string_view bytes, std::size_t first) {
  std::size_t zeros = 0;
  for (std::size_t i = first; i < bytes.size(); i += 2) zeros += bytes[i] == '\0' ? 1 : 0;
  return 10 * zeros > 7 * (bytes.size() / 2);
}

// Letters that one code page has where the other has none, or none of the languages that use it.
Encoding code_page_of(std::string_view bytes) {
  constexpr std::string_view kCentral = "\xB9\xE6\xB3\x9C\x9F\xBF\xA5\xA3\x8C\x8F\xAF\xBA\xFE\xE3\xAA\xDE\xC3";
  constexpr std::string_view kWestern = "\xE0\xE8\xEC\xF2\xF9\xE5\xC5\xF8\xD8";
  constexpr std::string_view kOnlyWestern = "\x83\x88\x98";
  std::size_t central = 0;
  std::size_t western = 0;
  for (const char byte : bytes) {
    if (static_cast<unsigned char>(byte) < 0x80) continue;
    if (kOnlyWestern.find(byte) != std::string_view::npos) return Encoding::cp1252;
    central += kCentral.find(byte) != std::string_view::npos ? 1 : 0;
    western += kWestern.find(byte) != std::string_view::npos ? 1 : 0;
  }
  return western > central ? Encoding::cp1252 : Encoding::cp1250;
}

std::vector<char> utf8_of_utf16(std::string_view bytes, bool big) {
  std::string utf8;
  utf8.reserve(bytes.size());
  const auto unit = [&](std::size_t i) {
    const auto low = static_cast<unsigned char>(bytes[big ? i + 1 : i]);
    const auto high = static_cast<unsigned char>(bytes[big ? i : i + 1]);
    return static_cast<char32_t>(high << 8U | low);
  };
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    char32_t c = unit(i);
    if (c >= 0xD800 && c < 0xDC00 && i + 3 < bytes.size() && unit(i + 2) >= 0xDC00 && unit(i + 2) < 0xE000) {
      c = 0x10000 + ((c - 0xD800) << 10U) + (unit(i + 2) - 0xDC00);
      i += 2;
    }
    text::append(utf8, c >= 0xD800 && c < 0xE000 ? U'\uFFFD' : c);
  }
  return {utf8.begin(), utf8.end()};
}

std::vector<char> utf8_of_cp1252(std::string_view bytes) {
  // Code points of the bytes 80 to 9F; the five that are undefined stay controls, as the standard's decoders have it.
  constexpr std::array<char16_t, 32> kUpper = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                               0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    text::append(utf8, value >= 0x80 && value < 0xA0 ? static_cast<char32_t>(kUpper[value - 0x80U]) : value);
  }
  return {utf8.begin(), utf8.end()};
}

}  // namespace

std::string_view encoding_name(Encoding encoding) {
  switch (encoding) {
    case Encoding::utf8:
    case Encoding::utf8_marked:
      return "UTF-8";
    case Encoding::utf16_le:
      return "UTF-16 LE";
    case Encoding::utf16_be:
      return "UTF-16 BE";
    case Encoding::cp1250:
      return "Windows-1250";
    case Encoding::cp1252:
      return "Windows-1252";
    case Encoding::latin1:
      return "ISO 8859-1";
  }
  return {};
}

Encoding encoding_of(std::string_view bytes) {
  if (bytes.starts_with(text::kByteOrderMark)) return Encoding::utf8_marked;
  if (bytes.starts_with(kMarkLittle)) return Encoding::utf16_le;
  if (bytes.starts_with(kMarkBig)) return Encoding::utf16_be;
  const std::string_view sample = bytes.substr(0, std::min(kSample, bytes.size() & ~std::size_t{1}));
  if (sample.size() >= 4) {
    if (mostly_zero(sample, 1)) return Encoding::utf16_le;
    if (mostly_zero(sample, 0)) return Encoding::utf16_be;
  }
  return text::is_valid(bytes) ? Encoding::utf8 : code_page_of(bytes);
}

DecodedText decoded(std::vector<char> bytes) {
  const std::string_view raw(bytes.data(), bytes.size());
  Encoding encoding = encoding_of(raw);
  switch (encoding) {
    case Encoding::utf8:
      return {std::move(bytes), encoding};
    case Encoding::utf8_marked:
      bytes.erase(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(text::kByteOrderMark.size()));
      if (text::is_valid({bytes.data(), bytes.size()})) return {std::move(bytes), encoding};
      return {text::with_replacements({bytes.data(), bytes.size()},
                                      text::size_with_replacements({bytes.data(), bytes.size()})),
              encoding};
    case Encoding::utf16_le:
    case Encoding::utf16_be: {
      const bool big = encoding == Encoding::utf16_be;
      const bool marked = raw.starts_with(big ? kMarkBig : kMarkLittle);
      return {utf8_of_utf16(raw.substr(marked ? 2 : 0), big), encoding};
    }
    case Encoding::cp1252:
      return {utf8_of_cp1252(raw), encoding};
    case Encoding::cp1250:
    case Encoding::latin1:
      break;
  }
  if (auto utf8 = vexo_xyz_impl::cp1250_to_utf8(bytes)) return {std::move(*utf8), Encoding::cp1250};
  return {vexo_xyz_impl::latin1_to_utf8(bytes), Encoding::latin1};
}

}  // namespace intake
