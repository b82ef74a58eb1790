#include "vexo_xyz_impl/input/code_pages.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr char16_t kUndefined = 0;

// Code points of the bytes 80 to FF.
constexpr std::array<char16_t, 128> kCp1250 = {
    // clang-format off
    0x20AC, 0x0000, 0x201A, 0x0000, 0x201E, 0x2026, 0x2020, 0x2021, 0x0000, 0x2030, 0x0160, 0x2039, 0x015A, 0x0164, 0x017D, 0x0179,
    0x0000, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0000, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A,
    0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C,
    0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E,
    0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, 0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F,
    0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
    // clang-format on
};

// What a byte of either encoding becomes in UTF-8; nothing where it is undefined. Without destructors: a thread of a
// host may still read while the process ends.
struct Utf8 {
  std::array<char, 3> bytes{};
  std::uint8_t size = 0;
};
using Expansion = std::array<Utf8, 256>;

Expansion expansion_of(const std::array<char16_t, 128>* upper_half) {
  Expansion expansion;
  for (std::size_t byte = 0; byte < expansion.size(); ++byte) {
    const bool as_it_is = byte < 0x80 || upper_half == nullptr;
    const char32_t code_point = as_it_is ? static_cast<char32_t>(byte) : (*upper_half)[byte - 0x80];
    std::string utf8;
    if (as_it_is || code_point != kUndefined) text::append(utf8, code_point);
    std::copy(utf8.begin(), utf8.end(), expansion[byte].bytes.begin());
    expansion[byte].size = static_cast<std::uint8_t>(utf8.size());
  }
  return expansion;
}

std::optional<std::vector<char>> expand(std::span<const char> bytes, const Expansion& expansion) {
  std::size_t size = 0;
  for (const char byte : bytes) {
    const Utf8& utf8 = expansion[static_cast<unsigned char>(byte)];
    if (utf8.size == 0) return std::nullopt;
    size += utf8.size;
  }
  std::vector<char> expanded;
  expanded.reserve(size);
  for (const char byte : bytes) {
    const Utf8& utf8 = expansion[static_cast<unsigned char>(byte)];
    expanded.insert(expanded.end(), utf8.bytes.data(), utf8.bytes.data() + utf8.size);
  }
  return expanded;
}

}  // namespace

std::optional<std::vector<char>> cp1250_to_utf8(std::span<const char> bytes) {
  static const Expansion expansion = expansion_of(&kCp1250);
  return expand(bytes, expansion);
}

std::vector<char> latin1_to_utf8(std::span<const char> bytes) {
  static const Expansion expansion = expansion_of(nullptr);
  return expand(bytes, expansion).value_or(std::vector<char>());
}

}  // namespace vexo_xyz_impl
