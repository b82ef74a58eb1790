// The command that repeats an import without a question.
#pragma once

#include <string>
#include <vector>

namespace console {

/// As a shell takes it: the file that was read, the options that were given, but for what made another file into that
/// one, and the answers that were not among them.
[[nodiscard]] std::string repeating_command(const std::string& file, const std::vector<std::string>& options,
                                            const std::vector<std::string>& answers);

}  // namespace console
