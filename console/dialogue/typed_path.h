// What a typed or pasted path may mean: as it stands, or spelled as shells, file managers and browsers spell paths.
#pragma once

#include <string>
#include <string_view>

namespace console {

/// The path that `typed` names. That is the path exactly as typed, blanks and double quotes around it aside, whenever
/// there is something of that name. Else it is the first of these readings that names something there is: with ~ for
/// the home folder, without single or double quotes and backslashes, of an address file://…, %20 being a blank. Where
/// none does, it is `typed` itself.
[[nodiscard]] std::string existing_path(std::string typed);

/// A path that begins with ~ or ~/ with the home folder in its place; any other as it is.
[[nodiscard]] std::string with_home(std::string_view path);

/// The text with each %XX replaced by the byte of that hexadecimal number.
[[nodiscard]] std::string without_percents(std::string_view address);

/// The text with each character behind a backslash standing for itself.
[[nodiscard]] std::string without_backslashes(std::string_view typed);

inline constexpr std::string_view kFileScheme = "file://";

}  // namespace console
