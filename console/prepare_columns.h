// What the columns of a table are taken for: as the options say, as the table itself tells beyond doubt, or as the user
// chooses among numbered readings.
#pragma once

#include <optional>
#include <string>

#include "console/dialogue/line_source.h"
#include "console/exit_code.h"
#include "intake/seen_table.h"

namespace console {

struct ChosenColumns {
  std::optional<intake::Roles> roles;
  ExitCode code = kNothingImported;  ///< without roles, why
};

/// The user has been told what was decided, or why nothing was. `columns` as `--columns` gives them. The module must be
/// entered.
[[nodiscard]] ChosenColumns choose_columns(const intake::SeenTable& table, const std::optional<std::string>& columns,
                                           LineSource& lines);

}  // namespace console
