#include "console/dxf/numerals.h"

#include <algorithm>
#include <array>

namespace console {

char* put_shortest(char* to, double value) {
  char* const written = std::to_chars(to, to + kLongestNumeral, value, std::chars_format::fixed).ptr;
  if (std::find(to, written, '.') != written) return written;
  constexpr std::string_view kFraction = ".0";
  return std::copy(kFraction.begin(), kFraction.end(), written);
}

std::string numeral(double value) {
  std::array<char, kLongestNumeral> text{};
  return {text.data(), put_real(text.data(), value)};
}

}  // namespace console
