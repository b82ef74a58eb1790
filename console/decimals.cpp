#include "console/decimals.h"

#include <array>
#include <charconv>

namespace console {

std::string with_decimals(double value, int decimals) {
  std::array<char, 400> digits{};
  auto* const end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals).ptr;
  std::string text(digits.data(), end);
  if (text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos) text.erase(0, 1);
  return text;
}

std::string spelled(double value, int decimals) {
  std::string text = with_decimals(value, decimals);
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

std::string distance_text(double metres) {
  constexpr double kKilometre = 1000.0;
  constexpr double kWithDecimal = 9.95;  // from there on the first decimal says nothing
  const bool is_far = metres >= kKilometre - 0.5;
  const double value = is_far ? metres / kKilometre : metres;
  return with_decimals(value, value < kWithDecimal ? 1 : 0) + (is_far ? " km" : " m");
}

}  // namespace console
