// The account on the command line: how many rows gave no point, why, and where they stand.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "console/account/account.h"

namespace console {

/// The reason in the user's language.
[[nodiscard]] std::string reason_of(Why why);

/// "3, 5 and 9", in the user's language; of many the first ten.
[[nodiscard]] std::string listed(std::span<const std::size_t> lines);

/// Prints a line for each reason for which rows gave no point, the first five rows with their text; nothing when all
/// did.
void print_account(const Account& account);

}  // namespace console
