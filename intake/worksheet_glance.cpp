#include "intake/worksheet_glance.h"

#include <algorithm>
#include <cstddef>

namespace intake {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr char kLastColumn = 'D';  // in which a number is due
constexpr std::size_t kLongestTag = 200;
constexpr std::size_t kLongestStyle = 8;

std::string_view rows_of(std::string_view sheet) {
  const std::size_t begin = sheet.find("<sheetData");
  if (begin == kNone) return {};
  return sheet.substr(begin, sheet.rfind("</sheetData>") - begin);
}

// As the first one has; where there is none there is no row either, or none that is seen.
bool cells_have_references(std::string_view rows) {
  const std::size_t cell = rows.find("<c");
  return cell != kNone && rows.substr(cell, rows.find('>', cell) - cell).find(" r=\"") != kNone;
}

// A formula's value stands behind it, in the same cell.
bool formulas_have_values(std::string_view rows) {
  for (std::size_t at = rows.find('f'); at != kNone; at = rows.find('f', at + 1)) {
    if (rows[at - 1] != '<') continue;
    const std::size_t end = rows.find("</c>", at);
    if (end == kNone) return false;
    const std::string_view cell = rows.substr(at, end - at);
    const std::size_t value = cell.find("<v>");
    if (value == kNone || cell.substr(value + 3).starts_with('<')) return false;
  }
  return true;
}

// Whether the tag of which `at` is a part, as cells' tags are written, opens one in the first columns.
bool is_in_first_columns(std::string_view rows, std::size_t at) {
  const std::string_view before = rows.substr(at - std::min(at, kLongestTag), std::min(at, kLongestTag));
  const std::size_t tag = before.rfind("<c ");
  if (tag == kNone) return false;
  const std::size_t reference = before.find("r=\"", tag);
  if (reference == kNone) return true;  // it stands behind: not as expected
  const std::string_view column = before.substr(reference + 3);
  return column.size() < 2 || (column[0] <= kLastColumn && column[1] <= '9');
}

bool has_dates(std::string_view rows, const NumberFormats& formats) {
  for (std::size_t at = rows.find("d\""); at != kNone; at = rows.find("d\"", at + 1))
    if (rows[at - 1] == '"' && is_in_first_columns(rows, at)) return true;
  if (!formats.any_dates()) return false;
  if (formats.of_style("") != ShownAs::number) return true;
  for (std::size_t at = rows.find("s=\""); at != kNone; at = rows.find("s=\"", at + 1)) {
    const std::string_view style = rows.substr(at + 3, kLongestStyle);
    if (formats.of_style(style.substr(0, style.find('"'))) != ShownAs::number && is_in_first_columns(rows, at))
      return true;
  }
  return false;
}

}  // namespace

bool may_be_flawed(std::string_view sheet, const NumberFormats& formats) {
  const std::string_view rows = rows_of(sheet);
  return rows.empty() || rows.find("hidden") != kNone || !cells_have_references(rows) || !formulas_have_values(rows) ||
         has_dates(rows, formats);
}

}  // namespace intake
