#include "intake/column_content.h"

#include <algorithm>
#include <cmath>

namespace intake {
namespace {

constexpr double kGreatestHeight = 9000.0;  // metres, above which only other values lie
constexpr double kLeastLatitude = 10.0;     // degrees; below it coordinates may be local metres as well

double size_of(const ColumnContent& column) { return std::max(std::abs(column.least), std::abs(column.greatest)); }

bool mostly_fine(const ColumnContent& column) { return 10 * column.fine >= 8 * column.numbers; }
bool mostly_finest(const ColumnContent& column) { return 10 * column.finest >= 8 * column.numbers; }

// Away from zero, and narrow unless the decimals are finer than any metre's.
bool is_belt_of_latitude(const ColumnContent& column) {
  const double least = std::min(std::abs(column.least), std::abs(column.greatest));
  const bool is_one_sided = least >= kLeastLatitude && (column.least > 0) == (column.greatest > 0);
  const bool is_narrow = 2.0 * (column.greatest - column.least) <= size_of(column);
  return size_of(column) <= 90.0 && is_one_sided && (is_narrow || mostly_finest(column));
}

}  // namespace

bool is_within(const TableShape& shape, std::size_t column, double bound) {
  return shape.columns[column].numbers > 0 && size_of(shape.columns[column]) <= bound;
}

double greatest_size(const TableShape& shape, std::size_t column) { return size_of(shape.columns[column]); }

bool are_degrees(const TableShape& shape, std::size_t a, std::size_t b) {
  const ColumnContent& first = shape.columns[a];
  const ColumnContent& second = shape.columns[b];
  if (!is_within(shape, a, 180.0) || !is_within(shape, b, 180.0)) return false;
  if (!mostly_fine(first) || !mostly_fine(second)) return false;
  return is_belt_of_latitude(first) || is_belt_of_latitude(second);
}

bool may_be_degrees(const TableShape& shape, std::size_t a, std::size_t b) {
  const bool sized = is_within(shape, a, 180.0) && is_within(shape, b, 180.0);
  const bool has_latitude = is_within(shape, a, 90.0) || is_within(shape, b, 90.0);
  const bool any_latitude = size_of(shape.columns[a]) >= kLeastLatitude || size_of(shape.columns[b]) >= kLeastLatitude;
  return sized && has_latitude && any_latitude && !shape.columns[a].is_whole() && !shape.columns[b].is_whole();
}

bool is_numbering(const TableShape& shape, std::size_t column) {
  const ColumnContent& numbers = shape.columns[column];
  if (!numbers.is_numeric() || !numbers.is_whole() || column + 2 >= shape.width) return false;
  if (10 * numbers.distinct < 9 * numbers.filled) return false;
  const auto is_measured = [](const ColumnContent& beside) {
    return beside.is_numeric() && 10 * beside.whole <= beside.numbers * 5;
  };
  return is_measured(shape.columns[column + 1]) && is_measured(shape.columns[column + 2]);
}

bool may_hold_heights(const TableShape& shape, std::size_t a, std::size_t b, std::size_t column) {
  const ColumnContent& height = shape.columns[column];
  if (height.is_numeric() || height.filled == 0 || size_of(height) > kGreatestHeight) return false;
  if (2 * height.nearly >= height.filled) return true;
  const bool coordinates_whole = shape.columns[a].is_whole() && shape.columns[b].is_whole();
  const std::size_t measured = height.numbers - (coordinates_whole ? 0 : height.whole);
  return (coordinates_whole ? 2 : 4) * (measured + height.nearly) >= height.filled;  // whole ones may be codes
}

bool may_be_height(const TableShape& shape, std::size_t a, std::size_t b, std::size_t column) {
  const ColumnContent& height = shape.columns[column];
  if (!height.is_numeric() || size_of(height) > kGreatestHeight) return false;
  const bool coordinates_whole = shape.columns[a].is_whole() && shape.columns[b].is_whole();
  // A level site has one height, written like the coordinates; a zone or a count is whole.
  return (coordinates_whole && !height.is_constant()) || 2 * height.whole < height.numbers;
}

}  // namespace intake
