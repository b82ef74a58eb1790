// Which column is what: proposals from the names and from what the columns hold, and whether the best of them is beyond
// doubt. Nothing is asked here, and what is not beyond doubt is said to be so.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "intake/roles.h"
#include "intake/table_shape.h"

namespace intake {

/// What speaks for a proposal.
enum class Ground {
  names,            ///< the header names the coordinates
  projection_line,  ///< a line above the data names their system: easting, northing, height, then what images add
  labels,           ///< the first column holds texts
  numbering,        ///< the first column holds whole numbers, those behind it do not
  order,            ///< only that files are mostly so
};

struct Proposal {
  Roles roles;
  Ground ground = Ground::order;
};

enum class Verdict {
  clear,           ///< the first proposal holds
  unclear,         ///< a person must choose
  maybe_degrees,   ///< the same, and the numbers may be degrees by their size
  degrees,         ///< decimal degrees, which are no drawing coordinates
  sexagesimal,     ///< degrees, minutes and seconds
  no_coordinates,  ///< no two columns of numbers
};

struct Decision {
  Verdict verdict = Verdict::no_coordinates;
  std::vector<Proposal> proposals;  ///< best first; at most nine
};

[[nodiscard]] Decision decide(const TableShape& shape);

/// What forbids roles that a person gave: degrees by name or by their values; `maybe_degrees` is for a
/// warning, `clear` when there is nothing to say.
[[nodiscard]] Verdict judged(const TableShape& shape, const Roles& roles);

/// Whether roles for fewer columns than there are seem to be one short: the first coordinate they name holds whole
/// numbers, those behind it and the first column that none is for do not, as with a number of two parts, "PKT 1".
[[nodiscard]] bool seem_one_short(const TableShape& shape, const Roles& roles);

/// The column that holds both coordinates, "389301,508713": by its name or the points of both; or, with `roles`, when
/// these take it for two. Empty without one.
[[nodiscard]] std::optional<std::size_t> pair_column(const TableShape& shape, const Roles* roles);

}  // namespace intake
