#include "vexo_xyz_impl/table/points.h"

#include <charconv>
#include <optional>

#include "vexo_xyz_impl/host/messages.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kShownCharacters = 40;
constexpr std::size_t kMostDigits = 20;  // of a 64-bit count

struct Columns {
  bool has_number;
  bool has_height;
  [[nodiscard]] std::size_t first() const { return has_number ? 1 : 0; }
  [[nodiscard]] std::size_t fewest() const { return first() + (has_height ? 3 : 2); }
};

Columns columns_of(Layout fmt) {
  return {fmt == Layout::NrXY || fmt == Layout::NrXYZ, fmt == Layout::XYZ || fmt == Layout::NrXYZ};
}

std::optional<PointRecord> point_of(Row row, const Columns& columns) {
  const std::size_t first = columns.first();
  const auto x = parse_number(row[first]);
  const auto y = x ? parse_number(row[first + 1]) : std::nullopt;
  if (!y) return std::nullopt;
  const auto z = columns.has_height ? parse_number(row[first + 2]) : 0.0;
  if (!z) return std::nullopt;
  return PointRecord{columns.has_number ? row[0] : std::string_view(), *x, *y, *z};
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

Decomposition _rozbierz(std::span<const Row> wiersze, Layout fmt) {
  const Columns columns = columns_of(fmt);
  Decomposition result;
  result.punkty.reserve(wiersze.size());
  for (std::size_t i = 0; i < wiersze.size(); ++i) {
    const Row w = wiersze[i];
    if (w.size() < columns.fewest()) {
      const auto cells = static_cast<long long>(w.size());
      const auto wanted = static_cast<long long>(columns.fewest());
      result.pominiete.push_back({i + 1, filled("xyz.pow_za_malo_kolumn", {cells, wanted}), row_text(w)});
    } else if (const auto point = point_of(w, columns)) {
      result.punkty.push_back(*point);
    } else {
      result.pominiete.push_back({i + 1, std::string(T("xyz.pow_naglowek")), row_text(w)});
    }
  }
  if (!columns.has_number) count_points(result);
  return result;
}

}  // namespace vexo_xyz_impl
