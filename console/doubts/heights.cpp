// Doubts about the height column: does it hold heights at all?
#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "console/account/account_lines.h"
#include "console/doubts/doubts.h"
#include "intake/cell_number.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/table/numbers.h"

namespace console {
namespace {

using vexo_xyz_impl::filled;
using vexo_xyz_impl::parse_number;
using vexo_xyz_impl::PointRecord;
using vexo_xyz_impl::Row;
using vexo_xyz_impl::SkippedLine;

constexpr double kHighest = 12000.0;  // metres, above and below: no point of the Earth's surface, no mine, no trench

constexpr double kTiny = 0.1;  // metres; heights so close above nought are few, standard errors are all so

long long column_shown(const Evidence& evidence) {
  return static_cast<long long>(height_column(*evidence.seen.verdict.fmt)) + 1;
}

// The header calls the column something else.
std::optional<Doubt> named_otherwise(Evidence& evidence) {
  const std::size_t column = height_column(*evidence.seen.verdict.fmt);
  if (!evidence.header || evidence.header->names.size() <= column) return std::nullopt;
  const auto& names = evidence.header->names;
  if (names[column] == intake::Named::height || names[column] == intake::Named::nothing) return std::nullopt;
  // A word that is not known says something only where its neighbours are.
  const bool neighbours_known = names_a_coordinate(names[column - 2]) && names_a_coordinate(names[column - 1]);
  if (names[column] == intake::Named::unknown && !neighbours_known) return std::nullopt;
  const std::string_view name = evidence.header->cells[column];
  return Doubt{"height", filled("konsola.watp_z_naglowek", {column_shown(evidence), name}), {evidence.header->line}};
}

// Rows whose coordinates are numbers, but not what was taken for their height.
std::optional<Doubt> fails_alone(Evidence& evidence) {
  const auto& seen = evidence.seen;
  const std::size_t z = height_column(*seen.verdict.fmt);
  std::vector<std::size_t> lines;
  std::string_view example;
  for (const SkippedLine& line : seen.read.pominiete) {
    if (line.cells_needed != 0 || !parse_number(line.cells[z - 2]) || !parse_number(line.cells[z - 1])) continue;
    if (lines.empty()) example = line.cells[z];
    lines.push_back(evidence.places.line_of_row(evidence.places.row_of_data(line.row - 1)));
  }
  if (lines.empty()) return std::nullopt;
  const std::string places = listed(lines);
  return Doubt{"height",
               filled("konsola.watp_z_nie_liczba", {static_cast<long long>(lines.size()), column_shown(evidence),
                                                    example, std::string_view(places)}),
               std::move(lines)};
}

struct HeightCounts {
  std::size_t points = 0;
  std::size_t like_x_or_y = 0;
  std::size_t beyond_earth = 0;
  std::size_t whole = 0;
  std::size_t tiny = 0;
  bool all_equal = true;
  bool rise_by_one = true;
};

HeightCounts counts_of(std::span<const PointRecord> punkty) {
  HeightCounts counts;
  counts.points = punkty.size();
  double before = punkty.front().z - 1.0;
  for (const PointRecord& point : punkty) {
    counts.like_x_or_y += point.z != 0.0 && (point.z == point.x || point.z == point.y) ? 1 : 0;
    counts.beyond_earth += std::abs(point.z) > kHighest ? 1 : 0;
    counts.tiny += point.z > 0.0 && point.z < kTiny ? 1 : 0;
    counts.whole += point.z == std::floor(point.z) ? 1 : 0;
    counts.all_equal &= point.z == punkty.front().z;
    counts.rise_by_one &= point.z == before + 1.0;
    before = point.z;
  }
  return counts;
}

// Whether nearly no coordinate is whole, so that whole heights beside them mean something.
bool coordinates_have_decimals(std::span<const PointRecord> punkty) {
  const auto whole = std::count_if(punkty.begin(), punkty.end(), [](const PointRecord& point) {
    return point.x == std::floor(point.x) && point.y == std::floor(point.y);
  });
  return static_cast<std::size_t>(whole) * 5 < punkty.size();
}

// Whether the heights of the first rows are written without decimals, as zones, codes and classes are.
bool are_written_whole(std::span<const Row> dane, std::size_t z) {
  constexpr std::size_t kSample = 200;
  const auto sample = dane.first(std::min(dane.size(), kSample));
  return std::all_of(sample.begin(), sample.end(),
                     [z](Row row) { return row.size() <= z || intake::decimals_of(row[z]) == 0; });
}

// What the numbers themselves say against their being heights; the key of the text, empty when nothing.
std::string_view unlike_heights(std::span<const PointRecord> punkty, std::span<const Row> dane, std::size_t z) {
  constexpr std::size_t kFewest = 3;       // of fewer points nothing is the rule
  constexpr std::size_t kFewestAlike = 5;  // whole or tiny numbers happen to a few
  const HeightCounts counts = counts_of(punkty);
  if (counts.points < kFewest) return {};
  if (counts.like_x_or_y * 2 > counts.points) return "konsola.watp_z_jak_xy";
  if (counts.beyond_earth * 2 > counts.points) return "konsola.watp_z_za_duze";
  if (counts.tiny == counts.points && counts.points >= kFewestAlike) return "konsola.watp_z_male";
  const bool all_whole = counts.whole == counts.points;
  if (all_whole && counts.all_equal && punkty.front().z != 0.0) return "konsola.watp_z_stale";
  if (!all_whole || counts.points < kFewestAlike || !coordinates_have_decimals(punkty) || !are_written_whole(dane, z))
    return {};
  if (counts.rise_by_one) return "konsola.watp_z_licznik";
  constexpr double kMostZones = 60.0;
  const bool few_and_small = std::all_of(
      punkty.begin(), punkty.end(), [](const PointRecord& point) { return point.z >= 1.0 && point.z <= kMostZones; });
  return few_and_small ? "konsola.watp_z_calkowite" : std::string_view();
}

std::optional<Doubt> numbers_unlike_heights(Evidence& evidence) {
  const auto& verdict = evidence.seen.verdict;
  const std::string_view key = unlike_heights(evidence.seen.read.punkty, verdict.dane, height_column(*verdict.fmt));
  if (key.empty()) return std::nullopt;
  const double example = evidence.seen.read.punkty.front().z;
  return Doubt{"height", filled(key, {column_shown(evidence), example}), {}};
}

// What no height is, or what stands for one that is missing.
bool is_no_height(double z) {
  constexpr std::array kMissing = {-999.0, -9999.0, -99999.0, -32767.0, -32768.0, 9999.0, 99999.0};
  return std::abs(z) > kHighest || std::find(kMissing.begin(), kMissing.end(), z) != kMissing.end();
}

// Heights of some rows that the others' are unlike.
std::optional<Doubt> none_in_some_rows(Evidence& evidence) {
  const auto& punkty = evidence.seen.read.punkty;
  std::vector<std::size_t> lines;
  double example = 0.0;
  for (std::size_t i = 0; i < punkty.size(); ++i) {
    if (!is_no_height(punkty[i].z) || !std::isfinite(punkty[i].z)) continue;
    if (lines.empty()) example = punkty[i].z;
    lines.push_back(evidence.places.line_of_point(i));
  }
  if (lines.empty()) return std::nullopt;
  const std::string places = listed(lines);
  return Doubt{"height",
               filled("konsola.watp_z_brak", {column_shown(evidence), static_cast<long long>(lines.size()), example,
                                              std::string_view(places)}),
               std::move(lines)};
}

}  // namespace

std::optional<Doubt> doubt_height(Evidence& evidence) {
  if (!has_heights(*evidence.seen.verdict.fmt)) return std::nullopt;
  if (evidence.seen.read.punkty.empty()) return fails_alone(evidence);
  for (const auto doubt : {named_otherwise, fails_alone, numbers_unlike_heights, none_in_some_rows})
    if (auto found = doubt(evidence)) return found;
  return std::nullopt;
}

}  // namespace console
