#include "console/account/account.h"

#include <algorithm>

namespace console {
namespace {

using vexo_xyz_impl::FileType;
using vexo_xyz_impl::ImportSeen;
using vexo_xyz_impl::Row;
using vexo_xyz_impl::SkippedLine;
using vexo_xyz_impl::Table;

// How many of the rising `positions` among things stand before the thing that is number `count` of the others.
std::size_t before(const std::vector<std::size_t>& positions, std::size_t count) {
  std::size_t low = 0;
  std::size_t high = positions.size();
  while (low < high) {  // the k-th position has positions[k] - k of the others before it
    const std::size_t middle = (low + high) / 2;
    if (positions[middle] - middle <= count) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

bool is_text(const ImportSeen& seen) { return seen.loaded.typ == FileType::tekst; }

std::vector<std::size_t> rows_left_out(const ImportSeen& seen) {
  std::vector<std::size_t> left_out;
  const auto& rows = seen.loaded.rows->rows();
  const auto& dane = seen.verdict.dane;
  std::size_t next = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (next < dane.size() && dane[next].data() == rows[i].data()) {
      ++next;
    } else {
      left_out.push_back(i);
    }
  }
  return left_out;
}

Account begun(const ImportSeen& seen) {
  Account account;
  const Table& table = *seen.loaded.rows;
  account.rows = table.size();
  LineCounts counts{account.rows, 0, 0};
  if (is_text(seen)) counts = count_lines(table.text(), table.rows());
  account.lines = counts.lines;
  account.comments = counts.comments;
  account.blank = counts.blank;
  return account;
}

Why why_left_out(Row row, std::size_t columns) { return row.size() < columns ? Why::too_few_columns : Why::no_number; }

void add_left_out(Account& account, const ImportSeen& seen, RowPlaces& places) {
  const auto& rows = seen.loaded.rows->rows();
  const std::size_t columns = vexo_xyz_impl::_liczba_kolumn(rows);
  account.left_out.reserve(places.left_out().size());
  for (const std::size_t i : places.left_out()) {
    const Why why = columns < 2 && rows[i].size() > 1 ? Why::not_imported
                                                      : why_left_out(rows[i], std::max<std::size_t>(columns, 2));
    account.left_out.push_back({places.line_of_row(i), why, row_text(rows[i])});
  }
}

void sort_by_line(std::vector<RowWithoutPoint>& rows) {
  std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.line < b.line; });
}

}  // namespace

RowPlaces::RowPlaces(const ImportSeen& seen)
    : seen_(seen), is_text_(is_text(seen)), left_out_(rows_left_out(seen)), finder_(seen.loaded.rows->text()) {
  skipped_.reserve(seen.read.pominiete.size());
  for (const SkippedLine& line : seen.read.pominiete) skipped_.push_back(line.row - 1);
}

std::size_t RowPlaces::row_of_data(std::size_t data_row) const { return data_row + before(left_out_, data_row); }

std::size_t RowPlaces::row_of_point(std::size_t point) const { return row_of_data(point + before(skipped_, point)); }

std::size_t RowPlaces::line_of_row(std::size_t row) {
  return is_text_ ? finder_.line_of(seen_.loaded.rows->rows()[row][0].data()) : row + 1;
}

std::size_t RowPlaces::line_of_point(std::size_t point) {
  const bool rows_forgotten = seen_.loaded.rows->size() == 0;
  if (!is_text_ || !rows_forgotten) return line_of_row(row_of_point(point));
  return finder_.line_of(seen_.read.punkty[point].nr.data());
}

Account account_of(const ImportSeen& seen, RowPlaces& places) {
  Account account = begun(seen);
  add_left_out(account, seen, places);
  for (const SkippedLine& line : seen.read.pominiete) {
    account.skipped.push_back({places.line_of_row(places.row_of_data(line.row - 1)),
                               line.cells_needed != 0 ? Why::too_few_columns : Why::no_number, row_text(line.cells)});
  }
  account.points = seen.read.punkty.size();
  return account;
}

void take_back(Account& account, const ImportSeen& seen, const RowPlaces& places, std::span<const std::size_t> points,
               Why why) {
  if (points.empty()) return;
  std::vector<Line> lines;
  if (is_text(seen)) lines = lines_with_rows(seen.loaded.rows->text());
  for (const std::size_t point : points) {
    const std::size_t row = places.row_of_point(point);
    const Line line = is_text(seen) ? lines[row] : Line{row + 1, seen.read.punkty[point].nr};
    account.skipped.push_back({line.number, why, row_text(Row(std::span(&line.text, 1)))});
  }
  sort_by_line(account.skipped);
  account.points -= points.size();
}

Account account_without_points(const ImportSeen& seen) {
  if (!seen.loaded.rows) return {};
  Account account = begun(seen);
  RowPlaces places(seen);
  add_left_out(account, seen, places);
  const auto& dane = seen.verdict.dane;
  for (std::size_t i = 0; i < dane.size(); ++i)
    account.skipped.push_back({places.line_of_row(places.row_of_data(i)), Why::not_imported, row_text(dane[i])});
  return account;
}

}  // namespace console
