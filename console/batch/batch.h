// Several files imported in one run, each by a process of its own: what ends one does not end the others.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "console/session.h"

namespace console {

struct BatchOptions {
  std::vector<std::string> files;
  unsigned jobs = 1;    ///< processes at a time
  SessionOptions each;  ///< for every file
};

/// Imports the files, each into a drawing of its own. Nobody is asked: a file that leaves a question open is set aside.
/// What there is to say of each is told on `out` in the files' order, and a table at the end; `reports`, if there is
/// one, gets their reports as a list in JSON. The worst of the files' exit codes; kFailure where the reports cannot be
/// written. Where the system gives no more processes at a time, fewer run; a file that gets none at all is one that
/// failed. The ends of processes (SIGCHLD) must not be ignored.
[[nodiscard]] ExitCode run_batch(const BatchOptions& options, std::ostream& out, std::ostream* reports);

}  // namespace console
