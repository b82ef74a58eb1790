// Numbers as people read them.
#pragma once

#include <string>

namespace console {

/// A finite number with so many decimals, never with an exponent; without a sign where it rounds to nothing.
[[nodiscard]] std::string with_decimals(double value, int decimals);

/// The same without needless noughts.
[[nodiscard]] std::string spelled(double value, int decimals = 1);

/// Metres as people say them: "0.4 m", "12 m", "3.2 km", "541 km".
[[nodiscard]] std::string distance_text(double metres);

}  // namespace console
