#include "vexo_xyz_impl/text/utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>

#include "vexo_xyz_impl/text/unicode_tables.h"

namespace vexo_xyz_impl::text {
namespace {

constexpr unsigned char byte_at(std::string_view utf8, std::size_t at) { return static_cast<unsigned char>(utf8[at]); }

constexpr bool is_ascii(unsigned char byte) { return byte < 0x80; }
constexpr bool is_continuation(unsigned char byte) { return (byte & 0xC0U) == 0x80U; }

constexpr bool is_ascii_white_space(unsigned char byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

// Length of the run of ASCII from `at` on, eight bytes a step: most survey files are nothing else.
std::size_t ascii_run(std::string_view utf8, std::size_t at) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080ULL;
  const std::size_t start = at;
  while (at + sizeof(std::uint64_t) <= utf8.size()) {
    std::uint64_t word = 0;
    std::memcpy(&word, utf8.data() + at, sizeof word);
    if ((word & kHighBits) != 0) break;
    at += sizeof word;
  }
  while (at < utf8.size() && is_ascii(byte_at(utf8, at))) ++at;
  return at - start;
}

struct Sequence {
  std::size_t bytes;
  bool is_whole;
};

// The sequence that begins at `at`, or the maximal part of one that is not completed; at least one byte.
Sequence sequence_at(std::string_view bytes, std::size_t at) {
  const unsigned char lead = byte_at(bytes, at);
  if (is_ascii(lead)) return {1, true};
  if (lead < 0xC2 || lead > 0xF4) return {1, false};  // no sequence begins so
  // What may follow the lead byte: narrower than any continuation where overlong forms, surrogates or values above
  // U+10FFFF would begin.
  unsigned char least = 0x80;
  unsigned char most = 0xBF;
  if (lead == 0xE0) least = 0xA0;
  if (lead == 0xED) most = 0x9F;
  if (lead == 0xF0) least = 0x90;
  if (lead == 0xF4) most = 0x8F;
  const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  std::size_t part = 1;
  while (part < length && at + part < bytes.size()) {
    const unsigned char next = byte_at(bytes, at + part);
    if (next < least || next > most) break;
    least = 0x80, most = 0xBF;
    ++part;
  }
  return {part, part == length};
}

// Where the valid text that begins at `at` ends.
std::size_t end_of_valid(std::string_view bytes, std::size_t at) {
  while (true) {
    at += ascii_run(bytes, at);
    if (at == bytes.size()) return at;
    const Sequence sequence = sequence_at(bytes, at);
    if (!sequence.is_whole) return at;
    at += sequence.bytes;
  }
}

// The last code point of a text; empty where no valid sequence ends.
std::optional<CodePoint> last_code_point(std::string_view utf8) {
  constexpr std::size_t kLongest = 4;
  for (std::size_t bytes = 1; bytes <= std::min(kLongest, utf8.size()); ++bytes) {
    const std::size_t at = utf8.size() - bytes;
    if (is_continuation(byte_at(utf8, at))) continue;
    const auto code_point = decode(utf8, at);
    return code_point && code_point->bytes == bytes ? code_point : std::nullopt;
  }
  return std::nullopt;
}

// The valid texts in `bytes`, and what replaces what lies between them.
template <class Take>
void for_each_part(std::string_view bytes, Take take) {
  for (std::size_t at = 0; at < bytes.size();) {
    const Sequence sequence = sequence_at(bytes, at);
    const std::size_t end = sequence.is_whole ? end_of_valid(bytes, at) : at + sequence.bytes;
    take(sequence.is_whole ? bytes.substr(at, end - at) : std::string_view("\uFFFD"));
    at = end;
  }
}

}  // namespace

std::optional<CodePoint> decode(std::string_view utf8, std::size_t at) {
  const unsigned char lead = byte_at(utf8, at);
  if (is_ascii(lead)) return CodePoint{lead, 1};
  std::size_t bytes = 0;
  char32_t value = 0;
  char32_t smallest = 0;  // anything below is an overlong form
  if ((lead & 0xE0U) == 0xC0U) {
    bytes = 2, value = lead & 0x1FU, smallest = 0x80;
  } else if ((lead & 0xF0U) == 0xE0U) {
    bytes = 3, value = lead & 0x0FU, smallest = 0x800;
  } else if ((lead & 0xF8U) == 0xF0U) {
    bytes = 4, value = lead & 0x07U, smallest = 0x10000;
  } else {
    return std::nullopt;
  }
  if (utf8.size() - at < bytes) return std::nullopt;
  for (std::size_t i = 1; i < bytes; ++i) {
    const unsigned char next = byte_at(utf8, at + i);
    if (!is_continuation(next)) return std::nullopt;
    value = (value << 6U) | (next & 0x3FU);
  }
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  if (value < smallest || surrogate || value > 0x10FFFF) return std::nullopt;
  return CodePoint{value, bytes};
}

bool is_valid(std::string_view bytes) { return end_of_valid(bytes, 0) == bytes.size(); }

std::size_t size_with_replacements(std::string_view bytes) {
  std::size_t size = 0;
  for_each_part(bytes, [&](std::string_view part) { size += part.size(); });
  return size;
}

std::vector<char> with_replacements(std::string_view bytes, std::size_t size) {
  std::vector<char> valid(size);
  auto end = valid.begin();
  for_each_part(bytes, [&](std::string_view part) { end = std::copy(part.begin(), part.end(), end); });
  return valid;
}

void append(std::string& utf8, char32_t code_point) {
  const auto tail = [&](unsigned shift) { utf8.push_back(static_cast<char>(0x80U | ((code_point >> shift) & 0x3FU))); };
  if (code_point < 0x80) {
    utf8.push_back(static_cast<char>(code_point));
  } else if (code_point < 0x800) {
    utf8.push_back(static_cast<char>(0xC0U | (code_point >> 6U)));
    tail(0);
  } else if (code_point < 0x10000) {
    utf8.push_back(static_cast<char>(0xE0U | (code_point >> 12U)));
    tail(6), tail(0);
  } else {
    utf8.push_back(static_cast<char>(0xF0U | (code_point >> 18U)));
    tail(12), tail(6), tail(0);
  }
}

std::string_view first_characters(std::string_view utf8, std::size_t count) {
  std::size_t at = 0;
  for (; count > 0 && at < utf8.size(); --count) {
    const auto code_point = decode(utf8, at);
    at += code_point ? code_point->bytes : 1;
  }
  return utf8.substr(0, at);
}

bool is_white_space(char32_t code_point) {
  return std::binary_search(std::begin(kWhiteSpace), std::end(kWhiteSpace), code_point);
}

std::size_t white_space_at(std::string_view utf8, std::size_t at) {
  const unsigned char lead = byte_at(utf8, at);
  if (is_ascii(lead)) return is_ascii_white_space(lead) ? 1 : 0;
  const auto code_point = decode(utf8, at);
  return code_point && is_white_space(code_point->value) ? code_point->bytes : 0;
}

std::string_view trim_white_space(std::string_view utf8) {
  while (!utf8.empty()) {
    const std::size_t bytes = white_space_at(utf8, 0);
    if (bytes == 0) break;
    utf8.remove_prefix(bytes);
  }
  while (!utf8.empty()) {
    const unsigned char last = byte_at(utf8, utf8.size() - 1);
    if (is_ascii(last)) {
      if (!is_ascii_white_space(last)) break;
      utf8.remove_suffix(1);
    } else {
      const auto code_point = last_code_point(utf8);
      if (!code_point || !is_white_space(code_point->value)) break;
      utf8.remove_suffix(code_point->bytes);
    }
  }
  return utf8;
}

std::optional<int> digit_value(char32_t code_point) {
  // Digits of a script stand in tens, so the table holds each ten's zero.
  const auto next = std::upper_bound(std::begin(kDigitZeros), std::end(kDigitZeros), code_point);
  if (next == std::begin(kDigitZeros)) return std::nullopt;
  const char32_t zero = *std::prev(next);
  if (code_point - zero > 9) return std::nullopt;
  return static_cast<int>(code_point - zero);
}

}  // namespace vexo_xyz_impl::text
