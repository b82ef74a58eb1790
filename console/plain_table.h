// Tables of plain text, their columns aligned by the cells that characters take.
#pragma once

#include <string>
#include <vector>

namespace console {

enum class Align { left, right };

/// A line for each row, columns two blanks apart; no blanks at a line's end. Rows may be shorter than `columns`.
[[nodiscard]] std::string plain_table(const std::vector<Align>& columns, std::vector<std::vector<std::string>> rows);

}  // namespace console
