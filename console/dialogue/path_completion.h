// Completion of a path that is being typed: blanks, quotes and any other character stand for themselves.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace console {

/// What may be added to a typed path.
struct PathCompletion {
  std::string addition;            ///< what all candidates go on with; a "/" behind the only one when it is a folder
  std::vector<std::string> names;  ///< the candidates' names, sorted
};

/// Candidates for the end of `typed`, whose leading blanks and quotes belong to no name. Hidden names are offered only
/// when their dot is typed. Folders that cannot be read have no candidates.
[[nodiscard]] PathCompletion complete_path(std::string_view typed);

}  // namespace console
