#include "intake/columns.h"

#include <algorithm>
#include <utility>

#include "intake/column_content.h"
#include "intake/header_words.h"
#include "intake/proposals.h"

namespace intake {
namespace {

constexpr std::size_t kMostProposals = 9;

// Names of all columns but the first, which numbers or labels the rows: as statistics programs write them.
bool name_a_column_less(const TableShape& shape) {
  if (shape.loose_names.size() + 1 != shape.width) return false;
  const ColumnContent& first = shape.columns.front();
  return is_numbering(shape, 0) || (first.numbers == 0 && first.filled == shape.rows);
}

std::vector<Column> coordinates_of(const TableShape& shape, const Roles& roles) {
  std::vector<Column> coordinates;
  for (Column i = 0; i < std::min(roles.size(), shape.width); ++i) {
    if (roles[i] == Role::number || roles[i] == Role::height || roles[i] == Role::other) continue;
    coordinates.push_back(i);
  }
  return coordinates;
}

void propose_names_behind_the_first(const TableShape& shape, Decision& decision) {
  TableShape moved = shape;
  moved.names = shape.loose_names;
  moved.names.insert(moved.names.begin(), std::string());
  auto named = by_names(moved).proposals;
  std::erase_if(named, [&](const Proposal& made) {  // no point is numbered by what is measured
    const auto number = std::find(made.roles.begin(), made.roles.end(), Role::number) - made.roles.begin();
    if (number == static_cast<std::ptrdiff_t>(made.roles.size())) return false;
    const ColumnContent& content = shape.columns[static_cast<Column>(number)];
    return content.is_numeric() && !content.is_whole();
  });
  for (const Proposal& made : decision.proposals) {
    const auto same = [&](const Proposal& other) { return other.roles == made.roles; };
    if (std::none_of(named.begin(), named.end(), same)) named.push_back(made);
  }
  decision.proposals = std::move(named);
}

}  // namespace

bool seem_one_short(const TableShape& shape, const Roles& roles) {
  const std::vector<Column> coordinates = coordinates_of(shape, roles);
  if (roles.size() >= shape.width || coordinates.size() != 2) return false;
  const auto is_measured = [&](Column i) {
    const ColumnContent& content = shape.columns[i];
    return content.is_numeric() && 2 * content.whole < content.numbers;
  };
  const ColumnContent& first = shape.columns[coordinates[0]];
  return first.is_numeric() && !is_measured(coordinates[0]) && is_measured(coordinates[1]) && is_measured(roles.size());
}

Decision decide(const TableShape& shape) {
  if (shape.rows == 0) return {};
  Decision decision;
  if (shape.header_line != 0) decision = by_names(shape);
  const bool settled = !decision.proposals.empty() || decision.verdict != Verdict::no_coordinates;
  if (!settled) {
    if (auto by_line = by_projection_line(shape)) {
      decision = std::move(*by_line);
    } else {
      decision = by_content(shape);
      if (name_a_column_less(shape)) propose_names_behind_the_first(shape, decision);
      // Names that say nothing may say so in a language that is not known here.
      if (shape.header_line != 0 && decision.verdict == Verdict::clear) decision.verdict = Verdict::unclear;
    }
  }
  if (decision.proposals.size() > kMostProposals) decision.proposals.resize(kMostProposals);
  return decision;
}

Verdict judged(const TableShape& shape, const Roles& roles) {
  const std::vector<Column> coordinates = coordinates_of(shape, roles);
  if (coordinates.size() != 2) return Verdict::clear;
  const auto angle = [&](Column i) {
    const Named named = header_name(shape.names[i]).named;
    return (named == Named::latitude || named == Named::longitude) && is_within(shape, i, 180.0);
  };
  const auto sexagesimal = [&](Column i) { return 2 * shape.columns[i].sexagesimal > shape.rows; };
  if (sexagesimal(coordinates[0]) && sexagesimal(coordinates[1])) return Verdict::sexagesimal;
  if (angle(coordinates[0]) && angle(coordinates[1])) return Verdict::degrees;
  if (shape.projection == Projection::geographic && is_within(shape, coordinates[0], 180.0)) return Verdict::degrees;
  if (are_degrees(shape, coordinates[0], coordinates[1])) return Verdict::degrees;
  const bool named = names_a_coordinate(header_name(shape.names[coordinates[0]]).named);
  return !named && may_be_degrees(shape, coordinates[0], coordinates[1]) ? Verdict::maybe_degrees : Verdict::clear;
}

std::optional<std::size_t> pair_column(const TableShape& shape, const Roles* roles) {
  const auto is_coordinate = [&](Column i) {
    return i < roles->size() && (*roles)[i] != Role::number && (*roles)[i] != Role::height &&
           (*roles)[i] != Role::other;
  };
  for (Column i = 0; i < shape.width; ++i) {
    const ColumnContent& content = shape.columns[i];
    if (content.filled == 0) continue;
    const bool with_points = 10 * content.pairs >= 9 * content.filled;
    const bool whole = 10 * content.whole_pairs >= 9 * content.filled;
    const bool evident = with_points || (whole && header_name(shape.names[i]).named == Named::pair);
    const bool counted_as_two = roles != nullptr && roles->size() == shape.width + 1;
    const bool taken_as_two = roles != nullptr && is_coordinate(i) && is_coordinate(i + 1);
    if (counted_as_two ? with_points || whole : evident && (roles == nullptr || taken_as_two)) return i;
  }
  return std::nullopt;
}

}  // namespace intake
