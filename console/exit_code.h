// Exit codes of the program.
#pragma once

namespace console {

enum ExitCode { kImported = 0, kNothingImported = 1, kUsage = 2, kFailure = 3 };

}  // namespace console
