#include "console/plain_table.h"

#include <algorithm>
#include <cstddef>

#include "console/dialogue/shown_text.h"

namespace console {
namespace {

// What a cell says, on one line.
std::string shown(const std::string& cell) {
  std::string shown = without_control_characters(cell);
  std::replace_if(
      shown.begin(), shown.end(), [](char c) { return c == '\n' || c == '\t'; }, ' ');
  return shown;
}

}  // namespace

std::string plain_table(const std::vector<Align>& columns, std::vector<std::vector<std::string>> rows) {
  for (auto& row : rows) std::transform(row.begin(), row.end(), row.begin(), shown);
  std::vector<std::size_t> widths(columns.size());
  for (const auto& row : rows)
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], cells_of(row[i]));
  std::string text;
  for (const auto& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      const std::string gap(widths[i] - cells_of(row[i]), ' ');
      line += i == 0 ? "" : "  ";
      line += columns[i] == Align::left ? row[i] + gap : gap + row[i];
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + "\n";
  }
  return text;
}

}  // namespace console
