// The program's own texts, topic by topic: a key with what it says in each language stands in one place.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace console {

/// A key that begins with "konsola.", the values its templates take (as in `vexo_teksty::Key`) and its four texts.
struct Text {
  std::string_view key;
  std::string_view values;
  std::string_view polish;
  std::string_view german;
  std::string_view romanian;
  std::string_view english;
};

[[nodiscard]] std::span<const Text> program_texts();
[[nodiscard]] std::span<const Text> account_texts();
[[nodiscard]] std::span<const Text> batch_texts();
[[nodiscard]] std::span<const Text> doubt_texts();
[[nodiscard]] std::span<const Text> reason_texts();
[[nodiscard]] std::span<const Text> prepare_texts();
[[nodiscard]] std::span<const Text> check_texts();
[[nodiscard]] std::span<const Text> into_texts();
[[nodiscard]] std::span<const Text> preview_texts();

}  // namespace console
