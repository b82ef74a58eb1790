#include <algorithm>
#include <vector>

#include "intake/column_content.h"
#include "intake/header_words.h"
#include "intake/proposals.h"

namespace intake {
namespace {

constexpr double kLeastGrid = 20000.0;  // above the pixels of any image

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

}  // namespace

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

}  // namespace intake
