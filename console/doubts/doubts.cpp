#include "console/doubts/doubts.h"

#include <array>
#include <span>
#include <utility>

namespace console {
namespace {

using vexo_xyz_impl::ImportSeen;
using vexo_xyz_impl::Row;

constexpr std::array<DoubtFunction, 8> kOfRows = {
    doubt_degrees,  doubt_height,     doubt_header_columns, doubt_not_finite,
    doubt_far_away, doubt_same_place, doubt_comma_in_label, doubt_rows_left_out,
};

constexpr std::array<DoubtFunction, 3> kOfImport = {
    doubt_header_axes,
    doubt_axes_unconfirmed,
    doubt_repeated_number,
};

std::vector<Doubt> all_of(std::span<const DoubtFunction> functions, Evidence& evidence) {
  std::vector<Doubt> doubts;
  for (const DoubtFunction function : functions)
    if (auto doubt = function(evidence)) doubts.push_back(std::move(*doubt));
  return doubts;
}

}  // namespace

std::optional<Header> header_of(const ImportSeen& seen, Places& places) {
  const auto& dane = seen.verdict.dane;
  if (dane.empty()) return std::nullopt;
  const std::size_t columns = dane.front().size();
  std::size_t row = places.row_of_data(0);
  while (row > 0) {  // all that stand above the first data row were left out
    const Row above = seen.loaded.rows->rows()[--row];
    if (above.size() != columns) continue;
    const std::vector<std::string_view> cells(above.begin(), above.end());
    if (!intake::is_header(cells)) continue;
    Header header{places.line_of_row(row), cells, {}};
    for (const std::string_view cell : cells) header.names.push_back(intake::header_name(cell).named);
    return header;
  }
  return std::nullopt;
}

std::vector<Doubt> doubts_of_rows(Evidence& evidence) { return all_of(kOfRows, evidence); }

std::vector<Doubt> doubts_of_import(Evidence& evidence) { return all_of(kOfImport, evidence); }

}  // namespace console
