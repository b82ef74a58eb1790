#include <algorithm>
#include <vector>

#include "intake/column_content.h"
#include "intake/proposals.h"

namespace intake {
namespace {

constexpr std::size_t kEnoughToRise = 5;  // rows; fewer rise by chance

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

}  // namespace

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

}  // namespace intake
