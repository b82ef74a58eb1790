#include "console/dxf/tag_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace console {
namespace {

constexpr double kThousandths = 1000.0;
constexpr double kThousandthsTold = 8796093022208.0;  // 2^43: up to it doubles are less than a thousandth apart

// Coordinates mostly are whole millimetres. If the quotient reads back to the very double, its decimals are a right
// spelling, and much cheaper to find than the shortest one in general; where doubles are closer than thousandths, no
// other number of so few decimals is. Returns `to` when the value is no such number.
char* put_thousandths(char* to, double value) {
  const double scaled = std::nearbyint(std::abs(value) * kThousandths);
  if (!(std::abs(value) < kThousandthsTold) || scaled / kThousandths != std::abs(value)) return to;
  const auto all = static_cast<std::uint64_t>(scaled);
  if (std::signbit(value)) *to++ = '-';
  to = std::to_chars(to, to + 20, all / 1000).ptr;
  const auto fraction = static_cast<unsigned>(all % 1000);
  const std::array<char, 3> digits = {static_cast<char>('0' + fraction / 100),
                                      static_cast<char>('0' + fraction / 10 % 10),
                                      static_cast<char>('0' + fraction % 10)};
  const int wanted = digits[2] != '0' ? 3 : digits[1] != '0' ? 2 : 1;
  *to++ = '.';
  return std::copy_n(digits.begin(), wanted, to);
}

char* put_shortest(char* to, char* end, double value) {
  char* const written = std::to_chars(to, end, value, std::chars_format::fixed).ptr;
  if (std::find(to, written, '.') != written) return written;
  constexpr std::string_view kFraction = ".0";
  return std::copy(kFraction.begin(), kFraction.end(), written);
}

char* put_hexadecimal(char* to, Handle value) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  int shift = 60;
  while (shift > 0 && (value >> static_cast<unsigned>(shift)) == 0) shift -= 4;
  for (; shift >= 0; shift -= 4) *to++ = kDigits[(value >> static_cast<unsigned>(shift)) & 0xFU];
  return to;
}

}  // namespace

char* TagWriter::room(std::size_t bytes) {
  if (buffer_.size() - used_ < bytes) {
    flush();
    if (buffer_.size() < bytes) buffer_.resize(bytes);
  }
  return buffer_.data() + used_;
}

void TagWriter::flush() {
  sink_.write({buffer_.data(), used_});
  used_ = 0;
}

void TagWriter::lines(std::string_view tags) {
  std::memcpy(room(tags.size()), tags.data(), tags.size());
  used_ += tags.size();
}

void TagWriter::put_code(int code) {
  char* const to = room(kLongestNumber);
  char* const end = std::to_chars(to, to + kLongestNumber, code).ptr;
  *end = '\n';
  used_ += static_cast<std::size_t>(end + 1 - to);
}

void TagWriter::text(int code, std::string_view value) {
  put_code(code);
  lines(value);
  lines("\n");
}

void TagWriter::whole(int code, long long value) {
  put_code(code);
  char* const to = room(kLongestNumber);
  char* const end = std::to_chars(to, to + kLongestNumber, value).ptr;
  *end = '\n';
  used_ += static_cast<std::size_t>(end + 1 - to);
}

void TagWriter::real(int code, double value) {
  put_code(code);
  char* const to = room(kLongestNumber);
  char* end = put_thousandths(to, value);
  if (end == to) end = put_shortest(to, to + kLongestNumber, value);
  *end = '\n';
  used_ += static_cast<std::size_t>(end + 1 - to);
}

void TagWriter::handle(int code, Handle value) {
  put_code(code);
  char* const to = room(kLongestNumber);
  char* const end = put_hexadecimal(to, value);
  *end = '\n';
  used_ += static_cast<std::size_t>(end + 1 - to);
}

void TagWriter::position(int code, const Position& value) {
  real(code, value.x);
  real(code + 10, value.y);
  real(code + 20, value.z);
}

}  // namespace console
