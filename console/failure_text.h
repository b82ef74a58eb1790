// Failures of files in the user's language: what was being done, and what the system says of it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace console {

/// The reason for a message, without the mark at its end. A failure that the catalogue has no words for has the
/// system's own, with its number. The module must be entered.
[[nodiscard]] std::string failure_text(const std::system_error& failure);

/// The message of `key` with the path as its first value and a reason, where it takes one, as its second.
[[nodiscard]] std::string text_about(std::string_view key, const std::filesystem::path& path);
[[nodiscard]] std::string text_about(std::string_view key, const std::filesystem::path& path, std::string_view reason);
[[nodiscard]] std::string text_about(std::string_view key, const std::filesystem::path& path,
                                     const std::system_error& failure);

}  // namespace console
