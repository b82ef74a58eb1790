#include "vexo_xyz_impl/table/points.h"

#include <charconv>
#include <optional>

#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kShownCharacters = 40;
constexpr std::size_t kMostDigits = 20;  // of a 64-bit count

// Index of X, the first coordinate.
constexpr std::size_t first_coordinate(Layout fmt) { return has_number(fmt) ? 1 : 0; }

constexpr std::size_t cells_needed(Layout fmt) { return first_coordinate(fmt) + (has_heights(fmt) ? 3 : 2); }

std::optional<PointRecord> point_of(Row row, Layout fmt) {
  const std::size_t first = first_coordinate(fmt);
  const auto x = parse_number(row[first]);
  const auto y = x ? parse_number(row[first + 1]) : std::nullopt;
  if (!y) return std::nullopt;
  const auto z = has_heights(fmt) ? parse_number(row[first + 2]) : 0.0;
  if (!z) return std::nullopt;
  return PointRecord{has_number(fmt) ? row[0] : std::string_view(), *x, *y, *z};
}

// Numbers the points 1, 2, 3 …: gapless, whatever lines were skipped between them.
void count_points(Decomposition& result) {
  std::vector<char>& text = result.counted_numbers;
  text.resize(result.punkty.size() * kMostDigits);
  char* next = text.data();
  std::size_t count = 0;
  for (PointRecord& point : result.punkty) {
    char* const end = std::to_chars(next, next + kMostDigits, ++count).ptr;
    point.nr = {next, static_cast<std::size_t>(end - next)};
    next = end;
  }
}

}  // namespace

std::string row_text(Row row) {
  constexpr std::size_t kEnoughBytes = 4 * kShownCharacters;  // a character takes four bytes at most
  std::string joined;
  for (std::size_t i = 0; i < row.size() && joined.size() < kEnoughBytes; ++i) {
    if (i > 0) joined += ' ';
    joined += text::first_characters(row[i], kShownCharacters);  // a cell may be as long as its file
  }
  return std::string(text::first_characters(joined, kShownCharacters));
}

std::string reason_text(const SkippedLine& line) {
  if (line.cells_needed == 0) return T("xyz.pow_naglowek");
  const auto cells = static_cast<long long>(line.cells.size());
  return filled("xyz.pow_za_malo_kolumn", {cells, static_cast<long long>(line.cells_needed)});
}

Decomposition _rozbierz(std::span<const Row> wiersze, Layout fmt) {
  const std::size_t ile = cells_needed(fmt);
  Decomposition result;
  result.punkty.reserve(wiersze.size());
  for (std::size_t i = 0; i < wiersze.size(); ++i) {
    const Row w = wiersze[i];
    if (w.size() < ile) {
      result.pominiete.push_back({i + 1, result.skipped_rows.add_row(w), ile});
    } else if (const auto point = point_of(w, fmt)) {
      result.punkty.push_back(*point);
    } else {
      result.pominiete.push_back({i + 1, result.skipped_rows.add_row(w), 0});
    }
  }
  if (!has_number(fmt)) count_points(result);
  return result;
}

}  // namespace vexo_xyz_impl
