// What a check found, as a table in the user's language and as JSON.
#pragma once

#include <string>

#include "console/check/control_check.h"
#include "console/check/text_decoding.h"

namespace console {

struct CheckedDrawing {
  std::string path;
  double tolerance = 0.0;  ///< metres
  const DrawingPoints& points;
  const ControlFindings& findings;
  const TextDecoding& decoded;
};

/// Lines for the user: the table where there is something to tell, then the sums.
[[nodiscard]] std::string check_as_text(const CheckedDrawing& drawing);

/// One object, ended by a line break.
[[nodiscard]] std::string check_as_json(const CheckedDrawing& drawing);

}  // namespace console
