#include "vexo_xyz_impl/table/layout.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/table/points.h"
#include "vexo_xyz_impl/table/span.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kFewestForNumbering = 3;  // two values rise by chance
constexpr double kWhole = 1e-9;                 // distance from the nearest integer that still counts as whole

Cell cell_at(Row row, std::size_t column) {
  if (column < row.size()) return row[column];
  throw IndexError("a row has " + std::to_string(row.size()) + " cells and no cell " + std::to_string(column + 1) +
                   ": \"" + row_text(row) + "\"; remove it or give it a number in each column");
}

bool looks_like_data(Row row, std::size_t columns) {
  if (row.size() < columns) return false;
  const bool second = _czy_liczba(row[1]);
  // With two columns there is no third cell to ask for. That this fails is long-standing behaviour: the file mixes
  // labelled and bare rows, and the surveyor must look at it.
  return second && (_czy_liczba(row[0]) || _czy_liczba(cell_at(row, 2)));
}

// The numbers of one column in every row; empty when any cell holds none.
std::optional<std::vector<double>> column_numbers(std::span<const Row> dane, std::size_t column) {
  std::vector<double> numbers;
  numbers.reserve(dane.size());
  for (const Row row : dane) {
    const auto number = parse_number(cell_at(row, column));
    if (!number) return std::nullopt;
    numbers.push_back(*number);
  }
  return numbers;
}

bool are_whole(std::span<const double> values) {
  return std::all_of(values.begin(), values.end(),
                     [](double value) { return std::abs(value - std::nearbyint(value)) < kWhole; });
}

bool rise_strictly(std::span<const double> values) {
  return std::adjacent_find(values.begin(), values.end(), [](double a, double b) { return !(a < b); }) == values.end();
}

// The first `most` pairs of two columns.
std::vector<Pair> first_pairs(std::span<const Row> dane, std::size_t i, std::size_t j, std::size_t most) {
  std::vector<Pair> pary;
  for (const Row row : dane) {
    if (pary.size() == most) break;
    if (std::max(i, j) >= row.size()) continue;
    const auto a = parse_number(row[i]);
    const auto b = a ? parse_number(row[j]) : std::nullopt;
    if (b) pary.emplace_back(*a, *b);
  }
  return pary;
}

// Only the pairs that detection samples are read: the verdict is the same, and a million rows are not read twice.
bool columns_recognised(std::span<const Row> dane, std::size_t i, std::size_t j) {
  return !_wykryj_uklad(first_pairs(dane, i, j, kDetectionSample)).empty();
}

// A run of whole, rising numbers that spans less than the coordinates beside it is a numbering. Three such numbers span
// about 2, so that coordinates on one spot need no test of their own.
bool looks_like_numbering(std::span<const double> kol0, std::span<const double> kol1) {
  if (kol0.size() < kFewestForNumbering) return false;
  return are_whole(kol0) && rise_strictly(kol0) && span_of(kol0) < span_of(kol1);
}

LayoutVerdict settled(std::size_t columns, bool first_is_number, std::vector<Row> dane) {
  const Layout layout = layout_of(columns, first_is_number);
  if (columns == 3) {
    return {layout, T(first_is_number ? "xyz.fmt_3_nrxy" : "xyz.fmt_3_xyz"), std::move(dane)};
  }
  const char* key = first_is_number ? "xyz.fmt_n_nrxyz" : "xyz.fmt_n_xyz";
  return {layout, filled(key, {static_cast<long long>(columns)}), std::move(dane)};
}

}  // namespace

std::string_view layout_code(Layout layout) {
  switch (layout) {
    case Layout::XY:
      return "XY";
    case Layout::XYZ:
      return "XYZ";
    case Layout::NrXY:
      return "NrXY";
    case Layout::NrXYZ:
      return "NrXYZ";
  }
  throw KeyError("no such column layout");
}

Layout layout_of(std::size_t columns, bool first_is_number) {
  if (columns == 2) return Layout::XY;
  if (!first_is_number) return Layout::XYZ;
  return columns == 3 ? Layout::NrXY : Layout::NrXYZ;
}

std::size_t _liczba_kolumn(std::span<const Row> wiersze) {
  std::map<std::size_t, std::size_t> rows_by_length;
  for (const Row row : wiersze) ++rows_by_length[row.size()];
  std::size_t commonest = 0;
  std::size_t most = 0;
  for (const auto& [length, rows] : rows_by_length) {  // lengths rise, so the greater of equals comes last
    if (rows >= most) commonest = length, most = rows;
  }
  return commonest;
}

std::vector<Pair> _pary(std::span<const Row> dane, std::size_t i, std::size_t j) {
  return first_pairs(dane, i, j, dane.size());
}

std::optional<bool> _pierwsza_to_numer(std::span<const Row> dane) {
  if (dane.empty()) return std::nullopt;
  const auto kol0 = column_numbers(dane, 0);
  if (!kol0) return true;

  const bool test_a = columns_recognised(dane, 0, 1);
  const bool test_b = columns_recognised(dane, 1, 2);
  if (test_a != test_b) return test_b;

  const auto kol1 = column_numbers(dane, 1);
  if (kol1 && looks_like_numbering(*kol0, *kol1)) return true;
  return std::nullopt;  // a first column of coordinates is only ever confirmed by a coordinate system
}

LayoutVerdict _wykryj_format(std::span<const Row> wiersze) {
  const std::size_t n = _liczba_kolumn(wiersze);
  if (n < 2) return {std::nullopt, T("xyz.fmt_mniej_2"), {}};

  std::vector<Row> dane;
  dane.reserve(wiersze.size());
  std::copy_if(wiersze.begin(), wiersze.end(), std::back_inserter(dane),
               [n](Row row) { return looks_like_data(row, n); });
  if (dane.empty()) return {std::nullopt, T("xyz.fmt_brak_danych"), {}};
  if (n == 2) return {Layout::XY, T("xyz.fmt_2kol"), std::move(dane)};

  const auto first_is_number = _pierwsza_to_numer(dane);
  if (!first_is_number) {
    return {std::nullopt, filled("xyz.fmt_niejasny", {static_cast<long long>(n)}), std::move(dane)};
  }
  return settled(n, *first_is_number, std::move(dane));
}

}  // namespace vexo_xyz_impl
