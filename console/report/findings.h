// What came of an import, as it is told and as a report holds it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "console/account/account.h"
#include "console/doubts/doubts.h"
#include "vexo_xyz_impl/crs/detection.h"

namespace console {

/// Why a file gave no points, and the way on.
struct Reason {
  std::string_view code;  ///< the same in every language and version; empty for no reason
  std::string text;
};

enum class Outcome { imported, nothing, failed };

enum class Axes { keep, swap, unconfirmed };

struct Findings {
  Outcome outcome = Outcome::nothing;
  std::string path;           ///< of the file that was read
  std::string prepared_from;  ///< what that file was made of, when it was
  struct RowNotTakenOver {
    std::size_t line = 0;  ///< of what it was made of
    std::string reason;
    std::string text;
  };
  std::vector<RowNotTakenOver> prepared_left_out;
  std::string encoding;                 ///< of a text file
  std::vector<std::string> separators;  ///< between its cells: ";", "tab", "blank"
  Account account;
  std::string layout;    ///< code; empty when it stayed open
  std::string evidence;  ///< what the layout was told by
  bool has_heights = false;
  struct System {
    vexo_xyz_impl::Candidate candidate;
    std::string name;
  };
  std::vector<System> systems;
  Axes axes = Axes::keep;
  std::optional<double> from_drawing;  ///< least distance to what the drawing held before, metres
  std::vector<std::string> answers;    ///< to the questions that arose, as words of a command line
  std::vector<Doubt> doubts;
  Reason reason;
  std::string drawing;  ///< path of the drawing that was saved
  std::string repeat;   ///< the command that repeats the import without a question
};

}  // namespace console
