// What a column of a foreign table holds.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace intake {

/// A column's part in a points' file; as `--columns` spells it beside each.
enum class Role {
  number,    ///< nr
  easting,   ///< e
  northing,  ///< n
  x,         ///< x: a coordinate whose axis is not known; of x and y the file's first is written first
  y,         ///< y: the other one; "y,x" says no more than "x,y"
  height,    ///< z
  other,     ///< -: not taken
};

/// A role for each column, in the file's order.
using Roles = std::vector<Role>;

/// Whether some column has the role.
[[nodiscard]] inline bool has_role(const Roles& roles, Role role) {
  return std::find(roles.begin(), roles.end(), role) != roles.end();
}

/// Roles as `--columns` spells them, separated by commas; empty when one is none or a role but `-` stands twice.
[[nodiscard]] std::optional<Roles> roles_of(std::string_view spelled);

/// The same the other way round.
[[nodiscard]] std::string spelled(const Roles& roles);

}  // namespace intake
