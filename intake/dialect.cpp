#include "intake/dialect.h"

#include <algorithm>
#include <map>

#include "intake/cell_number.h"
#include "intake/text_records.h"
#include "vexo_xyz_impl/text/lines.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

namespace text = vexo_xyz_impl::text;

constexpr std::size_t kBeginning = 400;  // lines of the sample, from the file's beginning
constexpr std::size_t kStretch = 100;    // and from each of its later quarters
constexpr std::size_t kLeastShare = 10;  // one line in so many at least is to have the widest row of fixed places

bool is_comment(std::string_view line) { return text::begins_comment(text::trim(line)); }

void take_lines(std::vector<std::string_view>& lines, std::string_view utf8, std::size_t most) {
  while (!utf8.empty() && most > 0) {
    const std::string_view line = text::take_line(utf8);
    if (text::trim(line).empty()) continue;
    lines.push_back(line);
    --most;
  }
}

std::vector<std::string_view> sample_of(std::string_view utf8) {
  std::vector<std::string_view> lines;
  take_lines(lines, utf8, kBeginning);
  if (lines.size() < kBeginning) return lines;
  for (std::size_t quarter = 1; quarter < 4; ++quarter) {
    const std::string_view rest = utf8.substr(utf8.size() / 4 * quarter);
    const std::size_t end = rest.find_first_of("\r\n");  // what stands before it is a part of a line
    if (end != std::string_view::npos && rest.data() > lines.back().data())
      take_lines(lines, rest.substr(end), kStretch);
  }
  return lines;
}

// The cells of a line with one separator, those at its end that are empty left away.
struct LineCells {
  explicit LineCells(char separator) : records({}, dialect_with(separator)) {}

  const std::vector<std::string_view>& of(std::string_view line) {
    records.restart(line);
    record.cells.clear();
    if (!records.next(record)) record.cells.clear();
    while (!record.cells.empty() && record.cells.back().empty()) record.cells.pop_back();
    return record.cells;
  }

  static Dialect dialect_with(char separator) {
    Dialect dialect;
    dialect.separator = separator;
    dialect.has_comments = false;
    return dialect;
  }

  TextRecords records;
  Record record;
};

// Angles are numbers here, and a cell may hold both coordinates.
std::size_t numbers_among(const std::vector<std::string_view>& cells) {
  std::size_t numbers = 0;
  for (const std::string_view cell : cells) {
    if (is_pair(cell) || is_long_pair(cell)) ++numbers;
    if (number_form(cell) != NumberForm::none || is_pair(cell) || is_sexagesimal(cell)) ++numbers;
  }
  return numbers;
}

SeparatorEvidence evidence_for(char separator, const std::vector<std::string_view>& lines) {
  SeparatorEvidence evidence;
  evidence.separator = separator;
  LineCells cells_of(separator);
  std::map<std::size_t, std::size_t> widths;
  for (const std::string_view line : lines) {
    const auto& cells = cells_of.of(line);
    if (cells.size() < 2) continue;
    ++evidence.lines;
    if (numbers_among(cells) < 2) continue;
    ++evidence.numbers;
    ++widths[cells.size()];
  }
  for (const auto& [width, count] : widths)
    if (count >= evidence.of_width) evidence.width = width, evidence.of_width = count;
  return evidence;
}

// The separator under which most lines have one width; of equals the one that is less often a part of a cell.
const SeparatorEvidence& decision(const Dialect& dialect) {
  return *std::max_element(dialect.evidence.begin(), dialect.evidence.end(),
                           [](const auto& a, const auto& b) { return a.of_width < b.of_width; });
}

std::size_t count_of(std::string_view line, char byte) {
  return static_cast<std::size_t>(std::count(line.begin(), line.end(), byte));
}

void see_details(Dialect& dialect, const std::vector<std::string_view>& lines) {
  LineCells cells_of(dialect.separator);
  LineCells blanks(' ');
  std::size_t points = 0;
  std::size_t commas = 0;
  std::size_t with = 0;
  std::size_t without = 0;
  for (const std::string_view line : lines) {
    const auto& cells = cells_of.of(line);
    for (const std::string_view cell : cells) {
      const NumberForm form = number_form(cell);
      points += form == NumberForm::point ? 1 : 0;
      commas += form == NumberForm::comma ? 1 : 0;
      const std::ptrdiff_t at = cell.data() - line.data();
      const bool is_inside = !cell.empty() && at > 0 && at < static_cast<std::ptrdiff_t>(line.size());
      dialect.quoted = dialect.quoted || (is_inside && *(cell.data() - 1) == '"');
    }
    if (dialect.separator == ' ') {
      (count_of(line, '\t') > 0 ? with : without) += 1;
    } else if (cells.size() >= 2) {
      ++with;
    } else if (numbers_among(blanks.of(line)) >= 2) {
      ++without;
    }
  }
  dialect.decimal_comma = commas > points;
  dialect.mixed = with > 0 && without > 0;
}

// ---- Places of columns that rows with missing values still keep.

using Places = std::vector<std::pair<std::size_t, std::size_t>>;

// From and to of each cell in characters.
Places places_of(std::string_view line, const std::vector<std::string_view>& cells) {
  Places places;
  for (const std::string_view cell : cells) {
    const auto from = characters_in(line.substr(0, static_cast<std::size_t>(cell.data() - line.data())));
    places.emplace_back(from, from + characters_in(cell));
  }
  return places;
}

void cover(std::vector<bool>& covered, const Places& places) {
  for (const auto& [from, to] : places) {
    if (covered.size() < to) covered.resize(to);
    std::fill(covered.begin() + static_cast<std::ptrdiff_t>(from), covered.begin() + static_cast<std::ptrdiff_t>(to),
              true);
  }
}

Places runs_of(const std::vector<bool>& covered) {
  Places runs;
  for (std::size_t i = 0; i < covered.size(); ++i) {
    if (!covered[i]) continue;
    if (i == 0 || !covered[i - 1]) runs.emplace_back(i, i);
    runs.back().second = i + 1;
  }
  return runs;
}

// Rows of different widths whose cells stand in columns that no row's cells connect.
Places fixed_places(const std::vector<std::string_view>& lines) {
  LineCells cells_of(' ');
  std::vector<bool> covered;
  std::map<std::size_t, std::size_t> widths;
  std::size_t rows = 0;
  for (const std::string_view line : lines) {
    if (line.find('\t') != std::string_view::npos) return {};
    const auto& cells = cells_of.of(line);
    if (numbers_among(cells) < 2) continue;
    cover(covered, places_of(line, cells));
    ++widths[cells.size()];
    ++rows;
  }
  Places runs = runs_of(covered);
  if (widths.size() < 2 || runs.size() != widths.rbegin()->first) return {};
  return kLeastShare * widths.rbegin()->second >= rows ? runs : Places();
}

}  // namespace

std::string_view separator_name(char separator) {
  switch (separator) {
    case ',':
      return "comma";
    case ';':
      return "semicolon";
    case '\t':
      return "tab";
    case '|':
      return "pipe";
    default:
      return "blanks";
  }
}

Dialect dialect_of(std::string_view utf8) {
  const auto all = sample_of(utf8);
  std::vector<std::string_view> lines;
  std::copy_if(all.begin(), all.end(), std::back_inserter(lines), [](auto line) { return !is_comment(line); });

  Dialect dialect;
  // Where a sign stands before nearly all lines it numbers points: "#1".
  dialect.has_comments = 2 * lines.size() >= all.size();
  if (!dialect.has_comments) lines = all;
  std::transform(kSeparators.begin(), kSeparators.end(), dialect.evidence.begin(),
                 [&](char separator) { return evidence_for(separator, lines); });
  const SeparatorEvidence& best = decision(dialect);
  dialect.separator = best.of_width > 0 ? best.separator : ' ';
  dialect.is_decided = best.of_width > 0;
  see_details(dialect, lines);
  if (dialect.separator == ' ') dialect.places = fixed_places(lines);
  return dialect;
}

}  // namespace intake
