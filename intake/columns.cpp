#include "intake/columns.h"

#include <algorithm>
#include <utility>

#include "intake/column_content.h"
#include "intake/header_words.h"

namespace intake {
namespace {

constexpr std::size_t kMostProposals = 9;
constexpr std::size_t kEnoughToRise = 5;  // rows; fewer rise by chance
constexpr double kLeastGrid = 20000.0;    // above the pixels of any image
using Column = std::size_t;
using Pair = std::pair<Column, Column>;

struct Candidate {
  Column column;
  std::size_t unknown_words;
};

// The columns that a header names, by what it says of them.
struct NamedColumns {
  std::vector<Candidate> of(Named named) const {
    std::vector<Candidate> found;
    for (Column i = 0; i < names.size(); ++i)
      if (names[i].named == named) found.push_back({i, names[i].unknown_words});
    return found;
  }
  std::vector<HeaderName> names;
};

Roles roles_with(const TableShape& shape, std::optional<Column> number, Pair pair, bool axes_known,
                 std::optional<Column> height) {
  Roles roles(shape.width, Role::other);
  if (number) roles[*number] = Role::number;
  if (!axes_known && pair.second < pair.first) std::swap(pair.first, pair.second);  // a bare Y, X: the file's order
  roles[pair.first] = axes_known ? Role::easting : Role::x;
  roles[pair.second] = axes_known ? Role::northing : Role::y;
  if (height) roles[*height] = Role::height;
  return roles;
}

// ---- By names

NamedColumns names_of(const TableShape& shape) {
  NamedColumns named;
  for (Column i = 0; i < shape.width; ++i) {
    HeaderName name = header_name(shape.names[i]);
    // A name of a quantity is none where the column holds none: constant zeros, texts.
    const ColumnContent& content = shape.columns[i];
    if (names_a_coordinate(name.named)) {
      const bool angle = content.sexagesimal > 0;
      const bool zeros = content.is_constant() && content.least == 0.0 && shape.rows > 1;
      if (content.filled == 0) name.named = Named::other_value;
      const bool any_height = name.named == Named::height && content.numbers + content.nearly > 0;
      if (2 * content.numbers < content.filled && !angle) {
        name.named = any_height ? Named::maybe_height : Named::unknown;
      }
      if (zeros && name.named != Named::height) name.named = Named::other_value;
    }
    named.names.push_back(name);
  }
  // One name over both coordinates, parted by now.
  for (Column i = 0; i + 1 < shape.width; ++i) {
    if (named.names[i].named != Named::pair || named.names[i + 1].named != Named::nothing) continue;
    if (!shape.columns[i].is_numeric() || !shape.columns[i + 1].is_numeric()) continue;
    named.names[i].named = Named::x;
    named.names[i + 1].named = Named::y;
  }
  return named;
}

// The k-th of one axis belongs to the k-th of the other; where one pair is named more plainly than the others, that
// one.
std::vector<Pair> pairs_of(const std::vector<Candidate>& first, const std::vector<Candidate>& second) {
  std::vector<Pair> pairs;
  if (first.size() == second.size()) {
    for (std::size_t k = 0; k < first.size(); ++k) pairs.emplace_back(first[k].column, second[k].column);
  } else {
    for (const Candidate& a : first)
      for (const Candidate& b : second) pairs.emplace_back(a.column, b.column);
  }
  return pairs;
}

// Of several columns of one kind those whose names say nothing else besides.
std::vector<Candidate> plainest(std::vector<Candidate> candidates) {
  if (candidates.empty()) return candidates;
  const auto least = std::min_element(candidates.begin(), candidates.end(), [](const auto& a, const auto& b) {
                       return a.unknown_words < b.unknown_words;
                     })->unknown_words;
  if (least == 0) std::erase_if(candidates, [](const Candidate& c) { return c.unknown_words > 0; });
  return candidates;
}

std::optional<Column> number_by_name(const TableShape& shape, const NamedColumns& named) {
  for (const Candidate& candidate : named.of(Named::number)) {
    const ColumnContent& content = shape.columns[candidate.column];
    if (10 * content.filled >= 5 * shape.rows && 2 * content.distinct >= content.filled) return candidate.column;
  }
  for (const Candidate& candidate : named.of(Named::counter))
    if (shape.columns[candidate.column].filled == shape.rows) return candidate.column;
  if (named.names.front().named == Named::nothing && shape.columns.front().filled == shape.rows) {
    return Column{0};  // what programs put before their first named column
  }
  const auto numbers = named.of(Named::number);
  if (!numbers.empty()) return numbers.front().column;
  // A first column of texts that are told apart, whatever its name.
  const ColumnContent& first = shape.columns.front();
  const bool are_labels = first.numbers == 0 && first.filled == shape.rows && 10 * first.distinct >= 9 * first.filled;
  return are_labels && named.names.front().named == Named::unknown ? std::optional(Column{0}) : std::nullopt;
}

// A column right behind the coordinates that might be a height, were its name understood.
bool hides_a_height(const TableShape& shape, const NamedColumns& named, Pair pair) {
  const Column next = std::max(pair.first, pair.second) + 1;
  if (next >= shape.width) return false;
  const Named name = named.names[next].named;
  if (name != Named::unknown && name != Named::nothing) return false;
  const ColumnContent& content = shape.columns[next];
  return (content.is_numeric() && !content.is_whole() && !content.is_constant()) ||
         may_hold_heights(shape, pair.first, pair.second, next);
}

// Of X, Y, Z side by side the Z is the height, whatever else has a height's name.
void keep_bare_z(const TableShape& shape, const std::vector<Pair>& pairs, std::vector<Candidate>& heights) {
  if (pairs.size() != 1) return;
  const Column behind = std::max(pairs.front().first, pairs.front().second) + 1;
  const bool is_bare = behind < shape.width && (shape.names[behind] == "Z" || shape.names[behind] == "z");
  if (is_bare) std::erase_if(heights, [behind](const Candidate& height) { return height.column != behind; });
}

// Metres below names of degrees.
bool are_too_large_for_degrees(const TableShape& shape, Pair pair) {
  constexpr double kCircle = 360.0;
  const auto is_too_large = [&](Column i) {
    return shape.columns[i].is_numeric() && greatest_size(shape, i) > kCircle;
  };
  return is_too_large(pair.first) && is_too_large(pair.second);
}

Decision by_names(const TableShape& shape) {
  const NamedColumns named = names_of(shape);
  const auto axes = pairs_of(plainest(named.of(Named::easting)), plainest(named.of(Named::northing)));
  const auto order = pairs_of(plainest(named.of(Named::x)), plainest(named.of(Named::y)));
  const auto angles = pairs_of(named.of(Named::longitude), named.of(Named::latitude));
  auto heights = named.of(Named::height);
  keep_bare_z(shape, order, heights);
  const auto number = number_by_name(shape, named);

  Decision decision;
  for (const bool axes_known : {true, false}) {
    for (const Pair& pair : axes_known ? axes : order) {
      if (are_degrees(shape, pair.first, pair.second)) {
        decision.verdict = Verdict::degrees;
        continue;
      }
      std::vector<std::optional<Column>> choices;
      choices.reserve(heights.size() + 1);
      for (const Candidate& height : heights) choices.emplace_back(height.column);
      if (heights.size() != 1) choices.emplace_back(std::nullopt);
      for (const auto& height : choices) {
        decision.proposals.push_back({roles_with(shape, number, pair, axes_known, height), Ground::names});
      }
    }
  }
  if (decision.proposals.empty()) {
    if (!angles.empty() && are_too_large_for_degrees(shape, angles[0])) {
      std::optional<Column> height;
      if (heights.size() == 1) height = heights.front().column;
      for (const bool axes_known : {true, false})
        decision.proposals.push_back({roles_with(shape, number, angles[0], axes_known, height), Ground::names});
      decision.verdict = Verdict::unclear;
    } else if (!angles.empty()) {
      const bool sexagesimal = shape.columns[angles[0].first].sexagesimal > shape.rows / 2;
      decision.verdict = sexagesimal ? Verdict::sexagesimal : Verdict::degrees;
    }
    return decision;
  }
  const Pair pair = axes.empty() ? order.front() : axes.front();
  // Beside degrees a bare X and Y may be places in an image; of a grid they are only when they are large.
  const bool is_image = axes.empty() && !angles.empty() && is_within(shape, pair.first, kLeastGrid) &&
                        is_within(shape, pair.second, kLeastGrid);
  const bool one_pair = axes.size() + order.size() == 1 && !is_image;
  const auto possible = named.of(Named::maybe_height);
  const bool height_told =
      heights.size() == 1 || (heights.empty() && possible.empty() && !hides_a_height(shape, named, pair));
  decision.verdict = one_pair && height_told ? Verdict::clear : Verdict::unclear;
  if (heights.empty()) {
    const Roles bare = decision.proposals.front().roles;
    for (const Candidate& height : possible) {
      Roles with = bare;
      with[height.column] = Role::height;
      decision.proposals.insert(decision.proposals.begin(), {std::move(with), Ground::names});
    }
  }
  if (heights.empty() && possible.empty() && hides_a_height(shape, named, pair)) {
    Roles with = decision.proposals.front().roles;
    with[std::max(pair.first, pair.second) + 1] = Role::height;
    decision.proposals.insert(decision.proposals.begin() + 1, {std::move(with), Ground::names});
  }
  return decision;
}

// ---- Below a line that names the projection: x, y, perhaps a height, the place in an image, its name, a point's name

std::optional<Decision> by_projection_line(const TableShape& shape) {
  if (shape.projection == Projection::none) return std::nullopt;
  const Column first = shape.columns.front().is_numeric() && !is_numbering(shape, 0) ? 0 : 1;
  Column numbers = 0;
  while (first + numbers < shape.width && shape.columns[first + numbers].is_numeric()) ++numbers;
  if (numbers < 2) return std::nullopt;
  if (shape.projection == Projection::geographic || are_degrees(shape, first, first + 1)) {
    return Decision{Verdict::degrees, {}};
  }
  std::optional<Column> number;
  if (first == 1) number = 0;
  const Column image = first + numbers;  // the file name of the image, then the point's
  if (first == 0 && image + 1 < shape.width && !shape.columns[image].is_numeric()) number = image + 1;
  // Three numbers have a height; four are two and the place in the image, five a height besides.
  const bool has_height = numbers == 3 || numbers == 5;
  Decision decision;
  decision.verdict = numbers == 2 || has_height || numbers == 4 ? Verdict::clear : Verdict::unclear;
  decision.proposals.push_back(
      {roles_with(shape, number, {first, first + 1}, true, has_height ? std::optional(first + 2) : std::nullopt),
       Ground::projection_line});
  return decision;
}

// ---- By content alone

// Of three columns and more that are alike the first two are the coordinates when neither is a decimal numbering or a
// time, which only rise, and what stands behind them is smaller, as heights are.
bool looks_like_coordinates_first(const TableShape& shape, Column a, Column b) {
  const ColumnContent& first = shape.columns[a];
  const bool only_rises = first.numbers >= kEnoughToRise && first.rising + 1 == first.numbers;
  const Column behind = b + 1;
  const bool is_smaller = behind >= shape.width || shape.columns[behind].numbers == 0 ||
                          greatest_size(shape, behind) < std::min(greatest_size(shape, a), greatest_size(shape, b));
  return !only_rises && is_smaller;
}

Decision by_content(const TableShape& shape) {
  std::vector<Column> numeric;
  for (Column i = 0; i < shape.width; ++i)
    if (shape.columns[i].is_numeric()) numeric.push_back(i);
  Decision decision;
  if (numeric.size() < 2) {
    std::size_t sexagesimal = 0;
    for (const ColumnContent& column : shape.columns) sexagesimal += 2 * column.sexagesimal > shape.rows ? 1 : 0;
    if (sexagesimal >= 2) decision.verdict = Verdict::sexagesimal;
    return decision;
  }
  const bool labels = numeric.front() > 0;
  const bool numbering = !labels && numeric.size() > 2 && is_numbering(shape, 0);
  const std::size_t skipped = numbering ? 1 : 0;
  const auto mostly_whole = [&](Column i) { return 2 * shape.columns[i].whole >= shape.columns[i].numbers; };
  const auto propose = [&](bool with_number, bool with_height, std::size_t codes = 0) {
    const std::size_t k = (labels ? 0 : (with_number ? 1 : 0)) + codes;
    if (k + 1 >= numeric.size() || (with_height && k + 2 >= numeric.size())) return;
    std::optional<Column> number;
    if (with_number) number = 0;
    // "PKT 1": of two the column that tells the points apart.
    if (codes > 0 && shape.columns[numeric[k - 1]].distinct > shape.columns[0].distinct) number = numeric[k - 1];
    std::optional<Column> height;
    if (with_height) height = numeric[k + 2];
    const Roles roles = roles_with(shape, number, {numeric[k], numeric[k + 1]}, false, height);
    const auto same = [&](const Proposal& made) { return made.roles == roles; };
    if (std::any_of(decision.proposals.begin(), decision.proposals.end(), same)) return;
    decision.proposals.push_back({roles, labels ? Ground::labels : (numbering ? Ground::numbering : Ground::order)});
  };
  const std::size_t behind = numeric.size() - skipped - 2;  // numbers behind the coordinates
  const bool numbered = labels || numbering;
  // Whole numbers between the number and what is measured: a code, or a number in two columns.
  const std::size_t second = labels ? 0 : 1;
  const bool has_codes = (labels || mostly_whole(numeric[0])) && numeric.size() > second + 2 &&
                         mostly_whole(numeric[second]) && !mostly_whole(numeric[second + 1]) &&
                         !mostly_whole(numeric[second + 2]);
  if (has_codes) {
    if (numeric.size() > second + 3) propose(true, true, 1);
    propose(true, false, 1);
  }
  propose(numbered, behind >= 1);
  propose(numbered, false);
  propose(!numbered, true);
  propose(!numbered, false);
  const Column a = numeric[skipped];
  const Column b = numeric[skipped + 1];
  if (are_degrees(shape, a, b)) return {Verdict::degrees, {}};

  const bool adjacent = b == a + 1 && a == (numbered ? 1U : 0U);
  const bool same_kind = mostly_whole(a) == mostly_whole(b);
  const bool starts_clearly =
      numbered || numeric.size() == 2 || (!mostly_whole(a) && looks_like_coordinates_first(shape, a, b));
  const bool unique = !labels || 2 * shape.columns.front().distinct >= shape.columns.front().filled;
  const bool hidden = b + 1 < shape.width && may_hold_heights(shape, a, b, b + 1);
  if (hidden) {
    Roles with = decision.proposals.front().roles;
    std::replace(with.begin(), with.end(), Role::height, Role::other);
    with[b + 1] = Role::height;
    decision.proposals.insert(decision.proposals.begin(), {std::move(with), decision.proposals.front().ground});
  }
  const bool height_clear =
      (behind == 0 && !hidden) || (behind == 1 && numeric[skipped + 2] == b + 1 && may_be_height(shape, a, b, b + 1));
  const bool clear = adjacent && same_kind && starts_clearly && unique && height_clear && shape.rows > 1;
  decision.verdict = clear ? Verdict::clear : Verdict::unclear;
  if (may_be_degrees(shape, a, b)) decision.verdict = Verdict::maybe_degrees;
  return decision;
}

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
