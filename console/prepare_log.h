// What became of each line of a table that was prepared: a line for a run of rows, one for each that gave none.
#pragma once

#include <string>
#include <string_view>

#include "intake/foreign_table.h"
#include "intake/prepared_file.h"

namespace console {

/// What a note says, in the user's language. The module must be entered.
[[nodiscard]] std::string note_text(intake::RowNote note);

/// The log's whole text. The module must be entered.
[[nodiscard]] std::string prepare_log(std::string_view source, std::string_view output,
                                      const intake::ForeignTable& table, const intake::PreparedAccount& account);

}  // namespace console
