#include "intake/table_shape.h"

#include <algorithm>
#include <map>
#include <unordered_set>
#include <utility>

#include "intake/cell_number.h"
#include "intake/header_words.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

namespace text = vexo_xyz_impl::text;

constexpr std::size_t kSample = 2000;  // records
constexpr std::size_t kPreview = 3;
constexpr std::size_t kRowsForAName = 20;  // of so many one at least has a cell for the last name
constexpr std::size_t kFine = 4;
constexpr std::size_t kFinest = 6;

struct Kept {
  std::size_t line;
  std::vector<std::string> cells;
};

using Sample = std::vector<Kept>;

Sample sample_of(Records& records) {
  Sample sample;
  records.rewind();
  Record record;
  while (sample.size() < kSample && records.next(record)) {
    sample.push_back({record.line, {record.cells.begin(), record.cells.end()}});
  }
  return sample;
}

bool is_number(std::string_view cell) { return number_form(cell) != NumberForm::none; }

// Whether a cell is a value: a number, an angle or a pair of numbers, not a word.
bool is_value(std::string_view cell) { return is_number(cell) || is_sexagesimal(cell) || is_pair(cell); }

std::size_t values_in(const Kept& row) {
  std::size_t count = 0;
  for (const std::string& cell : row.cells) {
    if (is_number(cell) || is_sexagesimal(cell)) ++count;
    if (pair_break(cell) != std::string_view::npos) count += 2;
  }
  return count;
}

std::size_t width_of(const Kept& row) {
  std::size_t width = row.cells.size();
  while (width > 0 && row.cells[width - 1].empty()) --width;
  return width;
}

// The commonest width of the rows with values, the greater of equals.
std::size_t commonest_width(const Sample& sample) {
  std::map<std::size_t, std::size_t> widths;
  for (const Kept& row : sample)
    if (values_in(row) >= 2) ++widths[row.cells.size()];
  std::size_t width = 0;
  std::size_t most = 0;
  for (const auto& [cells, count] : widths)
    if (count >= most) width = cells, most = count;
  return width;
}

// For each column whether most rows have a value there.
std::vector<bool> value_columns(const Sample& sample, std::size_t width) {
  std::vector<std::size_t> values(width);
  std::size_t rows = 0;
  for (const Kept& row : sample) {
    if (values_in(row) < 2 || row.cells.size() < 2) continue;
    ++rows;
    for (std::size_t i = 0; i < std::min(width, row.cells.size()); ++i) values[i] += is_value(row.cells[i]) ? 1 : 0;
  }
  std::vector<bool> columns(width);
  for (std::size_t i = 0; i < width; ++i) columns[i] = 2 * values[i] > rows;
  return columns;
}

// Numbers where the other rows have them; a title that holds a year and a count is none.
bool looks_like_row(const Kept& row, const std::vector<bool>& columns) {
  if (values_in(row) < 2) return false;
  std::size_t due = 0;
  std::size_t there = 0;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!columns[i]) continue;
    ++due;
    there += i < row.cells.size() && is_value(row.cells[i]) ? 1 : 0;
  }
  return due == 0 || 2 * there >= due;
}

bool is_header_of(const std::vector<std::string>& cells) {
  const std::vector<std::string_view> views(cells.begin(), cells.end());
  return is_header(views);
}

// The first row of data. Titles that hold numbers are few, and the header stands behind them.
Sample::const_iterator first_row(const Sample& sample, const std::vector<bool>& columns, std::size_t width) {
  constexpr std::ptrdiff_t kMostTitles = 3;
  const auto is_row = [&](const Kept& row) {
    return !is_header_of(row.cells) && looks_like_row(row, columns) && 2 * width_of(row) > width;
  };
  const auto first = std::find_if(sample.begin(), sample.end(), is_row);
  const auto titles_end = first + std::min(kMostTitles, sample.end() - first);
  const auto header = std::find_if(first, titles_end, [](const Kept& row) { return is_header_of(row.cells); });
  const auto behind = std::find_if(header, sample.end(), is_row);
  return header != titles_end && sample.end() - behind > header - first ? behind : first;
}

std::string joined(const Kept& row) {
  std::string all;
  for (const std::string& cell : row.cells) all += (all.empty() ? "" : " ") + cell;
  return all;
}

// A title, the number of columns, their names a line each, then the data: geostatistical programs write so.
bool take_names_by_line(TableShape& shape, const Sample& head) {
  for (std::size_t i = 0; i + 1 < head.size() && i < 3; ++i) {
    const std::string& count = head[i].cells.front();
    const auto columns = vexo_xyz_impl::parse_number(count);
    if (!columns || number_form(count) != NumberForm::whole || *columns < 2) continue;
    if (static_cast<double>(head.size() - i - 1) != *columns) continue;
    for (std::size_t k = i + 1; k < head.size(); ++k) shape.names.push_back(joined(head[k]));
    shape.header_line = head.back().line;
    return true;
  }
  return false;
}

// The header nearest to the data: a line of known names, else a line of words as wide as the rows right above them.
void take_header(TableShape& shape, const Sample& head) {
  auto header = std::find_if(head.rbegin(), head.rend(), [](const Kept& row) { return is_header_of(row.cells); });
  if (header == head.rend()) {
    header = std::find_if(head.rbegin(), head.rend(), [](const Kept& row) {
      return std::any_of(row.cells.begin(), row.cells.end(),
                         [](const std::string& cell) { return !cell.empty() && !is_unit(cell); });
    });
    if (header == head.rend() || header->cells.size() != shape.width || shape.width < 3) return;
    if (std::any_of(header->cells.begin(), header->cells.end(), is_value)) return;
  }
  shape.header_line = header->line;
  shape.names = header->cells;
}

// Whether the names are as many as the columns: columns without a value need none, names a column that some rows have.
bool names_fit(const TableShape& shape, const Sample& sample, const std::vector<bool>& columns) {
  std::size_t named = shape.names.size();
  if (named == shape.width) return true;
  while (named > 0 && shape.names[named - 1].empty()) --named;
  std::size_t rows = 0;
  std::size_t as_wide = 0;
  bool more_values = false;
  for (const Kept& row : sample) {
    if (row.line < shape.first_data_line || !looks_like_row(row, columns)) continue;
    ++rows;
    as_wide += row.cells.size() == named ? 1 : 0;
    more_values |= row.cells.size() == shape.width && width_of(row) > named;
  }
  return named <= shape.width ? !more_values : kRowsForAName * as_wide >= rows;
}

bool names_coordinates(const std::vector<std::string>& names) {
  return std::count_if(names.begin(), names.end(),
                       [](const std::string& name) { return names_a_coordinate(header_name(name).named); }) >= 2;
}

// The names in a comment, parted like the data or by blanks.
std::vector<std::string> commented_names(std::string_view comment, std::size_t width) {
  for (const std::string_view separators : {"\t", ";", ",", "|", " \t"}) {
    std::vector<std::string> cells;
    for (std::string_view rest = comment; !rest.empty();) {
      const std::size_t end = std::min(rest.find_first_of(separators), rest.size());
      const std::string_view cell = text::trim(rest.substr(0, end));
      if (!cell.empty() || separators.size() == 1) cells.emplace_back(cell);
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    const bool are_as_many = cells.size() == width;
    const bool are_nearly = cells.size() + 1 == width || cells.size() == width + 1;
    if (is_header_of(cells) && (are_as_many || (are_nearly && names_coordinates(cells)))) return cells;
  }
  return {};
}

void take_commented_header(TableShape& shape, const std::vector<std::pair<std::size_t, std::string_view>>& comments) {
  for (std::size_t i = comments.size(); i-- > 0;) {
    auto names = commented_names(comments[i].second, shape.width);
    if (names.empty()) continue;
    shape.header_line = comments[i].first;
    shape.names = std::move(names);
    return;
  }
}

// What a line says of a coordinate system, by the words that such lines are made of.
Projection projection_in(std::string_view line) {
  std::string lower;
  for (const char c : line) lower += text::ascii_lower(c);
  const auto has = [&](std::string_view word) { return lower.find(word) != std::string::npos; };
  if (has("epsg:4326") || has("epsg:4258") || has("epsg:4979") || has("+proj=longlat") || has("+proj=latlong") ||
      lower == "wgs84" || lower == "wgs 84") {
    return Projection::geographic;
  }
  const bool projected = has("epsg:") || has("+proj=") || (has("wgs84") && has("utm")) || has("projcs[");
  return projected ? Projection::projected : Projection::none;
}

void see_kinds(TableShape& shape, const Sample& sample, const std::vector<bool>& columns) {
  std::vector<std::size_t> numbers(shape.width);
  std::size_t rows = 0;
  for (const Kept& row : sample) {
    if (row.line < shape.first_data_line || row.cells.size() != shape.width || !looks_like_row(row, columns)) continue;
    ++rows;
    for (std::size_t i = 0; i < shape.width; ++i) numbers[i] += is_number(row.cells[i]) ? 1 : 0;
  }
  for (const std::size_t count : numbers) {
    const bool is_uniform = rows > 0 && (count == 0 || count == rows);
    shape.kinds.push_back(!is_uniform ? CellKind::any : (count == 0 ? CellKind::text : CellKind::number));
  }
}

void see_spreads(TableShape& shape, const Sample& sample, const std::vector<bool>& columns) {
  shape.spreads.resize(shape.cells);
  for (std::size_t i = 0; i < shape.cells; ++i) {
    std::vector<double> values;
    for (const Kept& row : sample) {
      if (row.line < shape.first_data_line || row.cells.size() != shape.cells || !looks_like_row(row, columns))
        continue;
      std::string plain;
      if (append_number(plain, row.cells[i])) values.push_back(vexo_xyz_impl::_num(plain));
    }
    if (values.empty()) continue;
    std::sort(values.begin(), values.end());
    shape.spreads[i] = {values.front(), values[values.size() / 2], values.back()};
  }
}

void see_content(TableShape& shape, const Sample& sample, const std::vector<bool>& columns) {
  shape.columns.resize(shape.width);
  std::vector<std::unordered_set<std::string_view>> distinct(shape.width);
  std::vector<double> before(shape.width);
  for (const Kept& row : sample) {
    if (row.line < shape.first_data_line || !looks_like_row(row, columns)) continue;
    ++shape.rows;
    if (shape.preview.size() < kPreview) shape.preview.push_back(row.cells);
    for (std::size_t i = 0; i < std::min(shape.width, row.cells.size()); ++i) {
      const std::string& cell = row.cells[i];
      if (cell.empty()) continue;
      ColumnContent& column = shape.columns[i];
      ++column.filled;
      distinct[i].insert(cell);
      column.sexagesimal += is_sexagesimal(cell) ? 1 : 0;
      column.pairs += is_pair(cell) ? 1 : 0;
      column.whole_pairs += is_long_pair(cell) ? 1 : 0;
      std::string plain;
      if (!append_number(plain, cell)) {
        column.nearly += is_nearly_number(cell) ? 1 : 0;
        continue;
      }
      const double value = vexo_xyz_impl::_num(plain);
      column.rising += column.numbers > 0 && value > before[i] ? 1 : 0;
      column.least = column.numbers == 0 ? value : std::min(column.least, value);
      column.greatest = column.numbers == 0 ? value : std::max(column.greatest, value);
      ++column.numbers;
      column.whole += number_form(cell) == NumberForm::whole ? 1 : 0;
      column.fine += decimals_of(cell) >= kFine ? 1 : 0;
      column.finest += decimals_of(cell) >= kFinest ? 1 : 0;
      before[i] = value;
    }
  }
  for (std::size_t i = 0; i < shape.width; ++i) shape.columns[i].distinct = distinct[i].size();
}

}  // namespace

TableShape shape_of(Records& records, const std::vector<std::pair<std::size_t, std::string_view>>& comments,
                    Cells cells) {
  const Sample sample = sample_of(records);
  TableShape shape;
  shape.width = commonest_width(sample);
  shape.cells = shape.width;
  const std::vector<bool> columns = value_columns(sample, shape.width);
  const auto first = first_row(sample, columns, shape.width);
  const Sample head(sample.begin(), first);
  for (const Kept& row : head) {
    if (const Projection said = projection_in(joined(row)); said != Projection::none) shape.projection = said;
  }
  for (const auto& [line, said] : comments) {
    if (const Projection here = projection_in(said); here != Projection::none) shape.projection = here;
  }
  if (first == sample.end()) {
    shape.columns.resize(shape.width);
    shape.names.resize(shape.width);
    return shape;
  }
  shape.first_data_line = first->line;
  if (!take_names_by_line(shape, head)) take_header(shape, head);
  if (shape.header_line == 0) take_commented_header(shape, comments);
  if (cells == Cells::counted && !shape.names.empty() && !names_fit(shape, sample, columns)) {
    shape.loose_names = std::exchange(shape.names, {});
  }
  shape.width = std::max(shape.width, std::min(shape.names.size(), shape.width + 1));
  see_kinds(shape, sample, columns);
  see_spreads(shape, sample, columns);
  see_content(shape, sample, columns);
  shape.names.resize(shape.width);
  return shape;
}

}  // namespace intake
