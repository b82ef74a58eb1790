// Numbers as the lines of a DXF file spell them. Each function writes at `to`, where there must be room for the longest
// of them, and returns where it stopped.
#pragma once

#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace console {

/// Bytes of any numeral here: a double has at most 309 digits before its point, or some 330 places behind it.
inline constexpr std::size_t kLongestNumeral = 350;

inline char* put_whole(char* to, long long value) { return std::to_chars(to, to + 20, value).ptr; }

/// A group code, 0 or above, and the end of its line.
inline char* put_code(char* to, int code) {
  if (code >= 100) {
    to = put_whole(to, code);
  } else {
    if (code >= 10) *to++ = static_cast<char>('0' + code / 10);
    *to++ = static_cast<char>('0' + code % 10);
  }
  *to++ = '\n';
  return to;
}

/// Upper case, without leading zeros.
inline char* put_hexadecimal(char* to, std::uint64_t value) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const int digits = value == 0 ? 1 : (static_cast<int>(std::bit_width(value)) + 3) / 4;
  for (int at = digits - 1; at >= 0; --at, value >>= 4U) to[at] = kDigits[value & 0xFU];
  return to + digits;
}

/// The shortest decimals that read back to a finite double, for those that `put_real` has no shorter way for.
char* put_shortest(char* to, double value);

/// The shortest decimals that read back to a finite double, with one behind the point at least.
///
/// Coordinates mostly are whole millimetres. If the quotient of a whole number by a thousand is the very double, its
/// decimals are a right spelling, and much cheaper to find than the shortest one in general; where doubles are closer
/// than thousandths, no other number of so few decimals is.
inline char* put_real(char* to, double value) {
  constexpr double kThousandths = 1000.0;
  constexpr double kThousandthsTold = 8796093022208.0;  // 2^43: up to it doubles are less than a thousandth apart
  const double magnitude = std::abs(value);
  if (!(magnitude < kThousandthsTold)) return put_shortest(to, value);
  // NOLINTNEXTLINE(bugprone-incorrect-roundings): a wrong guess does not give the value when it is divided
  const auto all = static_cast<std::int64_t>(magnitude * kThousandths + 0.5);
  if (static_cast<double>(all) / kThousandths != magnitude) return put_shortest(to, value);
  if (std::signbit(value)) *to++ = '-';
  to = put_whole(to, all / 1000);
  const auto fraction = static_cast<unsigned>(all % 1000);
  to[0] = '.';
  to[1] = static_cast<char>('0' + fraction / 100);
  to[2] = static_cast<char>('0' + fraction / 10 % 10);
  to[3] = static_cast<char>('0' + fraction % 10);
  return to + (to[3] != '0' ? 4 : to[2] != '0' ? 3 : 2);
}

/// The same as a text.
[[nodiscard]] std::string numeral(double value);

}  // namespace console
