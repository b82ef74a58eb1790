#include "console/dxf/numerals.h"

#include <algorithm>

namespace console {

char* put_shortest(char* to, double value) {
  char* const written = std::to_chars(to, to + kLongestNumeral, value, std::chars_format::fixed).ptr;
  if (std::find(to, written, '.') != written) return written;
  constexpr std::string_view kFraction = ".0";
  return std::copy(kFraction.begin(), kFraction.end(), written);
}

}  // namespace console
