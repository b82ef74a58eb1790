// `vexo-xyz check`: whether the points of an import still stand where they stood.
#pragma once

#include <filesystem>
#include <iosfwd>

#include "console/dialogue/line_source.h"
#include "console/exit_code.h"
#include "console/sibling_registry.h"

namespace console {

inline constexpr double kUsualTolerance = 0.0005;  // metres: half of what surveys are written in

struct CheckOptions {
  std::filesystem::path file;
  double tolerance = kUsualTolerance;  ///< metres
  bool json = false;                   ///< what was found is told as JSON
};

/// Reads the drawing and tells what it found on `out`, or as JSON on `reports`. kNothingImported when there is
/// something to tell, or no point is under control; kFailure when the file is no drawing that can be read, or the JSON
/// could not be written.
[[nodiscard]] ExitCode run_check(const CheckOptions& options, const Choice& choice, LineSource& lines,
                                 std::ostream& out, std::ostream& reports);

}  // namespace console
