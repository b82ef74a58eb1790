// Completion of a path that is being typed, in the spelling that it was begun in.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace console {

/// What may be added to a typed path.
struct PathCompletion {
  std::string addition;            ///< what all candidates go on with; a "/" behind the only one when it is a folder
  std::vector<std::string> names;  ///< the candidates' names, sorted; folders with a "/"
};

/// Candidates for the end of `typed`, whose leading blanks and quotes belong to no name: folders and files that may
/// hold points, so no drawings, backups and logs. As in typed_path.h, what is typed is read as it stands if that is the
/// beginning of a name there is, else with ~ for the home folder, %20 and backslashes; the addition is spelled
/// likewise. Hidden names are offered only when their dot is typed. Folders have the candidates that can be read.
[[nodiscard]] PathCompletion complete_path(std::string_view typed);

/// The names in columns, read downwards, that fit so many character cells; each line ended.
[[nodiscard]] std::string in_columns(const std::vector<std::string>& names, std::size_t width);

}  // namespace console
