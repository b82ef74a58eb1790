// Where a user's own files stand.
#pragma once

#include <filesystem>

namespace vexo_boot {

/// The folder that the environment variable names, else `in_home` of the home folder. Empty where neither is named by
/// an absolute path.
[[nodiscard]] std::filesystem::path user_folder(const char* variable, const std::filesystem::path& in_home);

}  // namespace vexo_boot
