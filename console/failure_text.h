// Failures of files in the user's language: what was being done, and what the system says of it.
#pragma once

#include <string>
#include <system_error>

namespace console {

/// The reason for a message, without the mark at its end. A failure that the catalogue has no words for has the
/// system's own, with its number. The module must be entered.
[[nodiscard]] std::string failure_text(const std::system_error& failure);

}  // namespace console
