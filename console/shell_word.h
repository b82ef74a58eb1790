// Words of a command line as a shell takes them.
#pragma once

#include <string>
#include <string_view>

namespace console {

/// The word as a shell takes it for one, in quotes where it needs them.
[[nodiscard]] inline std::string shell_word(std::string_view word) {
  constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-./,=:+@%";
  if (!word.empty() && word.find_first_not_of(kPlain) == std::string_view::npos) return std::string(word);
  std::string quoted = "'";
  for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

}  // namespace console
