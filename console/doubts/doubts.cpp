#include "console/doubts/doubts.h"

#include <array>
#include <span>
#include <string>
#include <utility>

#include "console/account/account_lines.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using vexo_xyz_impl::ImportSeen;
using vexo_xyz_impl::Row;

constexpr std::array<DoubtFunction, 9> kOfRows = {
    doubt_degrees,    doubt_height,         doubt_header_columns, doubt_not_finite,    doubt_far_away,
    doubt_same_place, doubt_comma_in_label, doubt_long_label,     doubt_rows_left_out,
};

constexpr std::array<DoubtFunction, 4> kOfImport = {
    doubt_header_axes,
    doubt_axes_unconfirmed,
    doubt_repeated_number,
    doubt_far_from_drawing,
};

struct Names {
  std::size_t row;  // the first that holds them
  std::vector<std::string_view> cells;
};

// The lowest of the rows above the data that has as many names as there are columns.
std::optional<Names> names_in_a_line(std::span<const Row> above, std::size_t columns) {
  for (std::size_t row = above.size(); row > 0; --row) {
    if (above[row - 1].size() != columns) continue;
    std::vector<std::string_view> cells(above[row - 1].begin(), above[row - 1].end());
    if (intake::is_header(cells)) return Names{row - 1, std::move(cells)};
  }
  return std::nullopt;
}

// A name a line, their count in the line above them: geostatistical programs write so.
std::optional<Names> names_in_lines(std::span<const Row> above, std::size_t columns) {
  if (above.size() <= columns) return std::nullopt;
  const std::size_t first = above.size() - columns;
  if (above[first - 1].size() != 1 || above[first - 1][0] != std::to_string(columns)) return std::nullopt;
  std::vector<std::string_view> cells;
  for (const Row row : above.subspan(first)) cells.push_back(row[0]);
  if (!intake::is_header(cells)) return std::nullopt;
  return Names{first, std::move(cells)};
}

std::vector<Doubt> all_of(std::span<const DoubtFunction> functions, Evidence& evidence) {
  std::vector<Doubt> doubts;
  for (const DoubtFunction function : functions)
    if (auto doubt = function(evidence)) doubts.push_back(std::move(*doubt));
  return doubts;
}

}  // namespace

std::optional<Header> header_of(const ImportSeen& seen, RowPlaces& places) {
  const auto& dane = seen.verdict.dane;
  if (dane.empty()) return std::nullopt;
  const auto above = std::span(seen.loaded.rows->rows()).first(places.row_of_data(0));
  const auto found = names_in_a_line(above, dane.front().size());
  const auto names = found ? found : names_in_lines(above, dane.front().size());
  if (!names) return std::nullopt;
  Header header{places.line_of_row(names->row), names->cells, {}};
  for (const std::string_view cell : names->cells) header.names.push_back(intake::header_name(cell).named);
  return header;
}

std::optional<Doubt> doubt_at(std::string_view code, std::string_view key, std::vector<std::size_t> lines) {
  if (lines.empty()) return std::nullopt;
  const std::string places = listed(lines);
  return Doubt{code, vexo_xyz_impl::filled(key, {static_cast<long long>(lines.size()), std::string_view(places)}),
               std::move(lines)};
}

std::vector<std::size_t> lines_of(RowPlaces& places, std::span<const std::size_t> points) {
  std::vector<std::size_t> lines;
  lines.reserve(points.size());
  for (const std::size_t point : points) lines.push_back(places.line_of_point(point));
  return lines;
}

std::vector<Doubt> doubts_of_rows(Evidence& evidence) { return all_of(kOfRows, evidence); }

std::vector<Doubt> doubts_of_import(Evidence& evidence) { return all_of(kOfImport, evidence); }

}  // namespace console
