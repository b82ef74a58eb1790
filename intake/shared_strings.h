// The texts that a workbook's cells share: rich text joined, readings of foreign scripts left out, an item without text
// counted like any other.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace intake {

/// Replaces "_x000D_" and the like by the character they stand for, as spreadsheet programs do; `text` may go away.
[[nodiscard]] std::string without_escapes(std::string_view text);

class SharedStrings {
 public:
  SharedStrings() = default;

  /// Fails as `parse_xml` does, and with MemoryError when there are too many.
  SharedStrings(const std::string& member, std::span<const char> xml);

  /// The text that an index from 0 on names; empty when it names none.
  [[nodiscard]] std::optional<std::string_view> find(std::string_view index) const;

 private:
  std::string text_;  // of all items
  std::vector<std::size_t> ends_;
};

}  // namespace intake
