// Roles as a person spells them for a table that has been looked at: by position, by the header's names, or both.
#pragma once

#include <optional>
#include <string_view>

#include "intake/roles.h"
#include "intake/table_shape.h"

namespace intake {

/// By position, "nr,n,e,z"; or by the header's names or positions, "nr=POINT,n=3", where a role that the name says
/// itself may be left out, "POINT,NORTH,EAST". Empty when they are neither, name what the header does not or has twice,
/// say no role, or do not name two coordinates.
[[nodiscard]] std::optional<Roles> roles_for(const TableShape& shape, std::string_view spelled);

/// Of a list of roles by names the first name that several columns have, letter case aside where none has it exactly;
/// empty when there is none.
[[nodiscard]] std::string_view ambiguous_name(const TableShape& shape, std::string_view spelled);

}  // namespace intake
